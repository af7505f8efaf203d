import QtQuick
import Orlen.App

/// How to remove an application that another program manages.
Column {
    id: root

    required property AppDetailModel detail

    spacing: Theme.spaceL

    Paragraph {
        width: root.width
        text: root.detail.advice
        wrapMode: Text.Wrap
        color: Theme.text
        font.pixelSize: Theme.bodySize
    }

    CommandBox {
        width: root.width
        command: root.detail.command
        onCopyRequested: root.detail.copyCommand()
    }
}

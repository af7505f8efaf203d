import QtQuick
import Orlen.App

/// Says how to let the program see the home folder, which a sandbox hides.
ColumnCard {
    id: root

    required property DiskAccessModel access
    /// Emitted when the keyboard reaches the button.
    signal reached

    spacing: Theme.spaceS

    HeadlineText {
        width: parent.width
        text: Strings.accessTitle
        wrapMode: Text.WordWrap
    }

    Paragraph {
        width: parent.width
        text: Strings.accessBody(root.access.command)
        wrapMode: Text.Wrap
    }

    CommandBox {
        width: parent.width
        command: root.access.command
        onCopyRequested: root.access.copyCommand()
        onReached: root.reached()
    }

    Paragraph {
        width: parent.width
        text: Strings.accessHint
        color: Theme.tertiary
        font.pixelSize: Theme.captionSize
    }
}

import QtQuick
import Orlen.App

/// The free space of the volume, for the middle of the storage ring.
Column {
    id: root

    required property StorageModel storage
    property bool large: false

    spacing: root.large ? 2 : 1

    Symbol {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: !root.storage.ready
        name: "internaldrive"
        colour: Theme.tertiary
        size: root.large ? 44 : 28
    }

    Text {
        width: parent.width
        visible: root.storage.ready
        horizontalAlignment: Text.AlignHCenter
        text: root.storage.freeText
        textFormat: Text.PlainText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        color: Theme.text
        font.pixelSize: Math.max(12, Math.min(root.large ? Theme.heroSize : Theme.titleSize, root.width * 0.22))
        font.weight: Font.Bold
        font.letterSpacing: root.large ? -0.8 : -0.3
    }

    Text {
        width: parent.width
        visible: root.storage.ready
        horizontalAlignment: Text.AlignHCenter
        text: Strings.freeOf.arg(root.storage.totalText)
        textFormat: Text.PlainText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        color: Theme.secondary
        font.pixelSize: Math.max(10, Math.min(root.large ? Theme.bodySize : Theme.captionSize, root.width * 0.125))
    }
}

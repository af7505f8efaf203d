import QtQuick
import Orlen.App

/// The volume's free space, for the middle of the storage ring.
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

    FittingText {
        width: parent.width
        visible: root.storage.ready
        text: root.storage.freeText
        most: root.large ? Theme.heroSize : Theme.titleSize
        share: 0.22
        font.weight: Font.Bold
        font.letterSpacing: root.large ? -0.8 : -0.3
    }

    FittingText {
        width: parent.width
        visible: root.storage.ready
        text: Strings.freeOf(root.storage.totalText)
        most: root.large ? Theme.bodySize : Theme.captionSize
        share: 0.125
        color: Theme.secondary
    }
}

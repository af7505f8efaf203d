import QtQuick
import Orlen.App

/// A suggested question; pressing it asks it.
Pressable {
    id: root

    /// Less prominent, for use below a conversation.
    property bool quiet: false

    implicitWidth: label.implicitWidth + (root.quiet ? 26 : 36)
    implicitHeight: Math.max(Theme.grown(root.quiet ? 30 : 38), label.height + (root.quiet ? 8 : 16))
    fill: root.hovered || root.down ? Theme.hover : root.quiet ? Theme.clear : Theme.card
    edge: root.hovered && !root.quiet ? Theme.accent : Theme.stroke
    edgeWidth: 1
    corner: root.height / 2
    ringGap: 2

    contentItem: Item {
        BodyText {
            id: label

            anchors.centerIn: parent
            width: Math.min(implicitWidth, root.width - 24)
            text: root.text
            wrapMode: root.quiet ? Text.NoWrap : Text.WordWrap
            color: !root.enabled ? Theme.tertiary : root.quiet ? Theme.secondary : Theme.text
            font.pixelSize: root.quiet ? Theme.captionSize : Theme.bodySize
            font.weight: Font.Medium
        }
    }
}

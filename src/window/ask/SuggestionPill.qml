import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A question that one may ask by pressing it.
T.AbstractButton {
    id: root

    /// Beside a conversation, where it must not draw the eye.
    property bool quiet: false

    implicitWidth: label.implicitWidth + (root.quiet ? 26 : 36)
    implicitHeight: Math.round((root.quiet ? 30 : 38) * Theme.textScale)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: root.text

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        BodyText {
            id: label

            anchors.centerIn: parent
            width: Math.min(implicitWidth, root.width - 24)
            text: root.text
            color: !root.enabled ? Theme.tertiary : root.quiet ? Theme.secondary : Theme.text
            font.pixelSize: root.quiet ? Theme.captionSize : Theme.bodySize
            font.weight: Font.Medium
        }
    }

    background: Rectangle {
        radius: height / 2
        color: root.hovered || root.down ? Theme.hover : root.quiet ? "transparent" : Theme.card
        border.width: 1
        border.color: root.hovered && !root.quiet ? Theme.accent : Theme.stroke

        FocusRing {
            shown: root.visualFocus
            gap: 2
            shape: root.height / 2
        }
    }
}

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// One screen in the sidebar.
T.ItemDelegate {
    id: root

    required property string title
    required property string symbol
    required property color tone
    required property int screen
    property bool isCurrent: false
    property bool ringed: false

    implicitHeight: Math.max(Theme.widened(38), label.height + 16)
    hoverEnabled: true
    highlighted: root.isCurrent
    text: root.title
    Accessible.name: root.title
    Accessible.selected: root.isCurrent

    contentItem: Item {
        Badge {
            id: badge

            anchors.left: parent.left
            anchors.leftMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            tone: root.tone
        }

        BodyText {
            id: label

            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceS
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            color: root.isCurrent ? Theme.text : Theme.secondary
            font.weight: root.isCurrent ? Font.DemiBold : Font.Medium
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.isCurrent ? (Theme.dark ? Theme.inset : Theme.card) : root.hovered ? Theme.hover : "transparent"
        border.width: root.isCurrent ? 1 : 0
        border.color: Theme.stroke

        FocusRing {
            shown: root.ringed
            gap: 1
        }
    }
}

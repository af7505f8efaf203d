import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A finding that an answer is about; opens its detail.
T.AbstractButton {
    id: root

    required property string findingId
    required property string title
    required property string symbol
    required property color tone
    required property string size

    objectName: "answerLink-" + root.findingId
    implicitHeight: Math.round(44 * Theme.textScale)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    text: root.title
    Accessible.name: root.title + ", " + root.size

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        Badge {
            id: badge

            x: 10
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            tone: root.tone
            size: 24
        }

        SmallText {
            anchors.left: badge.right
            anchors.leftMargin: 10
            anchors.right: amount.left
            anchors.rightMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            color: Theme.text
            font.weight: Font.DemiBold
        }

        SmallText {
            id: amount

            anchors.right: chevron.left
            anchors.rightMargin: 8
            anchors.verticalCenter: parent.verticalCenter
            text: root.size
        }

        Symbol {
            id: chevron

            anchors.right: parent.right
            anchors.rightMargin: 12
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            colour: Theme.tertiary
            size: 12
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.hovered || root.down ? Theme.hover : Theme.inset

        FocusRing {
            shown: root.visualFocus
            gap: 2
        }
    }
}

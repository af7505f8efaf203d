import QtQuick
import Orlen.App

/// A finding mentioned in an answer; opens its details.
Pressable {
    id: root

    required property string findingId
    required property string title
    required property string symbol
    required property color tone
    required property string size

    objectName: "answerLink-" + root.findingId
    implicitHeight: Theme.grown(44)
    fill: root.hovered || root.down ? Theme.hover : Theme.inset
    ringGap: 2
    text: root.title
    Accessible.name: Strings.spoken([root.title, root.size])

    contentItem: Item {
        Badge {
            id: badge

            anchors.left: parent.left
            anchors.leftMargin: 10
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            tone: root.tone
        }

        SmallText {
            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceS
            anchors.right: amount.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.title
            color: Theme.text
            font.weight: Font.DemiBold
        }

        SmallText {
            id: amount

            anchors.right: chevron.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.size
        }

        Symbol {
            id: chevron

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            colour: Theme.tertiary
            size: 12
        }
    }
}

import QtQuick
import Orlen.App

/// How much applications that are gone left behind; opens the list of it.
Pressable {
    id: root

    required property LeftBehindModel leftovers

    objectName: "leftBehind"
    implicitHeight: texts.height + 2 * Theme.spaceM
    fill: root.down ? Theme.inset : Theme.card
    edge: root.hovered ? Theme.accent : Theme.stroke
    edgeWidth: 1
    corner: Theme.cardRadius
    text: Strings.leftBehind
    Accessible.description: root.leftovers.summary
    onClicked: root.leftovers.show()

    contentItem: Item {
        Badge {
            id: badge

            anchors.left: parent.left
            anchors.leftMargin: Theme.cardMargin
            anchors.verticalCenter: parent.verticalCenter
            name: "archivebox.fill"
            tone: Theme.appsTone
            size: 40
        }

        Column {
            id: texts

            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: chevron.left
            anchors.rightMargin: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            BodyText {
                width: parent.width
                text: root.text
                wrapMode: Text.WordWrap
                font.weight: Font.Medium
                Accessible.ignored: true
            }

            CaptionText {
                width: parent.width
                text: root.leftovers.summary
                wrapMode: Text.WordWrap
                color: Theme.secondary
                Accessible.ignored: true
            }
        }

        Symbol {
            id: chevron

            anchors.right: parent.right
            anchors.rightMargin: Theme.cardMargin
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.right"
            colour: Theme.tertiary
            size: 12
        }
    }
}

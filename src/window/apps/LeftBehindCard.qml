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

        RowTexts {
            id: texts

            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: chevron.left
            anchors.rightMargin: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter
            name: root.text
            place: root.leftovers.summary
            placeInk: Theme.secondary
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

import QtQuick
import Orlen.App

/// One photo clean-up: its title, size and first photos.
Card {
    id: root

    required property PhotoGroupsModel groups
    required property string findingId
    required property string title
    required property string symbol
    required property color tone
    required property ratingValue rating
    required property int photos
    required property string summary
    required property string selection

    readonly property int padding: Theme.cardMargin

    property bool wasOpened: false

    signal opened
    signal previewRequested(grid: PhotoGrid, row: int)

    height: head.height + strip.height + 3 * root.padding - 4

    // Restores the focus after the whole group was open.
    onVisibleChanged: {
        if (!root.visible || !root.wasOpened)
            return;
        root.wasOpened = false;
        showAll.forceActiveFocus(Qt.TabFocusReason);
    }

    PhotoTilesModel {
        id: shown

        groups: root.groups
        findingId: root.findingId
        limit: strip.columns
    }

    Item {
        id: head

        x: root.padding
        y: root.padding
        width: parent.width - 2 * root.padding
        height: Math.max(badge.height, labels.height)

        Badge {
            id: badge

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            tone: root.tone
            size: 40
        }

        Column {
            id: labels

            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: showAll.left
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: badge.verticalCenter
            spacing: Theme.spaceXs

            RatedTitle {
                width: parent.width
                title: root.title
                lines: 4
                size: Theme.headlineSize
                weight: Font.DemiBold
                rating: root.rating
            }

            SmallText {
                width: parent.width
                text: Words.facts([root.summary, root.selection])
                wrapMode: Text.WordWrap
            }
        }

        AppButton {
            id: showAll

            objectName: "showAll"
            anchors.right: parent.right
            anchors.verticalCenter: badge.verticalCenter
            text: Strings.showAllNumber(root.photos)
            Accessible.name: Strings.showAllOf(root.title)
            onClicked: {
                root.wasOpened = true;
                root.opened();
            }
        }
    }

    PhotoGrid {
        id: strip

        x: root.padding - 4
        anchors.top: head.bottom
        anchors.topMargin: root.padding - 4
        width: parent.width - 2 * x
        height: cellHeight
        interactive: false
        tiles: shown
        tileSize: 124
        Accessible.name: root.title
        onAllRequested: root.groups.toggleAll(root.findingId)
        onPreviewRequested: row => root.previewRequested(strip, row)
    }
}

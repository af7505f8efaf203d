import QtQuick
import QtQuick.Window
import Orlen.App

/// One photo clean-up: what it is, how much, and its first photos.
Card {
    id: root

    required property PhotoGroupsModel groups
    required property string findingId
    required property string title
    required property string explanation
    required property string symbol
    required property color tone
    required property string rating
    required property string ratingLabel
    required property string ratingSymbol
    required property string photosText
    required property string summary
    required property string selection

    readonly property int padding: 18
    readonly property int columns: Math.max(3, Math.floor(strip.width / (124 * Math.min(1.25, Theme.textScale))))

    property bool wasOpened: false

    signal opened
    signal previewRequested(tiles: PhotoTilesModel, row: int)

    height: head.height + strip.height + 3 * root.padding - 4

    // The keyboard goes on where it was when the whole group was opened.
    onVisibleChanged: {
        if (!root.visible || !root.wasOpened)
            return;
        root.wasOpened = false;
        showAll.forceActiveFocus(Qt.TabFocusReason);
    }

    PhotoTilesModel {
        id: tiles

        groups: root.groups
        findingId: root.findingId
        limit: root.columns
    }

    Item {
        id: head

        x: root.padding
        y: root.padding
        width: parent.width - 2 * root.padding
        height: Math.max(badge.height, labels.height)

        Badge {
            id: badge

            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            tone: root.tone
            size: 40
        }

        Column {
            id: labels

            anchors.left: badge.right
            anchors.leftMargin: 14
            anchors.right: showAll.left
            anchors.rightMargin: 12
            anchors.verticalCenter: badge.verticalCenter
            spacing: 3

            Row {
                width: parent.width
                spacing: 10

                Text {
                    anchors.verticalCenter: parent.verticalCenter
                    width: Math.min(implicitWidth, parent.width - chip.width - parent.spacing)
                    text: root.title
                    textFormat: Text.PlainText
                    elide: Text.ElideRight
                    color: Theme.text
                    font.pixelSize: Theme.headlineSize
                    font.weight: Font.DemiBold
                    Accessible.role: Accessible.Heading
                    Accessible.name: root.title
                }

                RatingChip {
                    id: chip

                    rating: root.rating
                    label: root.ratingLabel
                    symbol: root.ratingSymbol
                }
            }

            Text {
                width: parent.width
                text: root.summary
                textFormat: Text.PlainText
                elide: Text.ElideRight
                color: Theme.secondary
                font.pixelSize: Theme.smallSize
            }
        }

        AppButton {
            id: showAll

            objectName: "showAll"
            anchors.right: parent.right
            anchors.verticalCenter: badge.verticalCenter
            text: Strings.showAllNumber.arg(root.photosText)
            Accessible.name: Strings.showAllOf.arg(root.title)
            onClicked: {
                root.wasOpened = true;
                root.opened();
            }
        }
    }

    GridView {
        id: strip

        property bool isKeyed: false

        objectName: "photoStrip"
        x: root.padding - 4
        anchors.top: head.bottom
        anchors.topMargin: root.padding - 4
        width: parent.width - 2 * x
        height: cellHeight
        cellWidth: Math.floor(width / root.columns)
        cellHeight: cellWidth
        interactive: false
        activeFocusOnTab: true
        model: tiles
        Accessible.role: Accessible.List
        Accessible.name: root.title

        Keys.onPressed: event => {
            strip.isKeyed = true;
            event.accepted = false;
        }
        Keys.onReleased: strip.isKeyed = true
        Keys.onReturnPressed: tiles.toggle(strip.currentIndex)
        Keys.onEnterPressed: tiles.toggle(strip.currentIndex)
        Keys.onSpacePressed: root.previewRequested(tiles, strip.currentIndex)

        delegate: PhotoTile {
            id: tile

            required property int index

            width: strip.cellWidth
            height: strip.cellHeight
            ringed: strip.isKeyed && tile.Window.activeFocusItem === tile
            onPressed: {
                strip.isKeyed = false;
                strip.currentIndex = tile.index;
            }
            onToggled: tiles.toggle(tile.index)
            onPreviewRequested: root.previewRequested(tiles, tile.index)
        }
    }
}

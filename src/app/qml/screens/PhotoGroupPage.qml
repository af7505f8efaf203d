import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Orlen.App

/// All photos of one clean-up.
Item {
    id: root

    required property PhotoGroupsModel groups
    required property string findingId
    required property string title
    required property string explanation
    required property string reason
    required property string symbol
    required property color tone
    required property string rating
    required property string ratingLabel
    required property string ratingSymbol
    required property string summary
    required property string selection
    required property int checkState

    readonly property int columns: Math.max(3, Math.floor(grid.width / (150 * Math.min(1.25, Theme.textScale))))

    signal closed
    signal previewRequested(tiles: PhotoTilesModel, row: int)

    Keys.onEscapePressed: root.closed()
    Component.onCompleted: grid.forceActiveFocus()

    PhotoTilesModel {
        id: tiles

        groups: root.groups
        findingId: root.findingId
    }

    Column {
        id: head

        x: Theme.pageMargin
        y: Theme.pageMargin
        width: parent.width - 2 * Theme.pageMargin
        spacing: 16

        Item {
            width: parent.width
            height: Math.max(badge.height, labels.height)

            IconButton {
                id: back

                objectName: "backToPhotos"
                framed: true
                y: (badge.height - height) / 2
                symbol: "chevron.left"
                text: Strings.backToPhotos
                onClicked: root.closed()
            }

            Badge {
                id: badge

                anchors.left: back.right
                anchors.leftMargin: 14
                name: root.symbol
                tone: root.tone
                size: 44
            }

            Column {
                id: labels

                anchors.left: badge.right
                anchors.leftMargin: 14
                anchors.right: parent.right
                spacing: 4

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
                        font.pixelSize: Theme.titleSize
                        font.weight: Font.Bold
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
                    text: root.reason === "" ? root.explanation : root.explanation + " " + root.reason
                    textFormat: Text.PlainText
                    wrapMode: Text.WordWrap
                    color: Theme.secondary
                    font.pixelSize: Theme.smallSize
                }
            }
        }

        Row {
            x: -all.leftPadding
            width: parent.width
            spacing: 4

            CheckMark {
                id: all

                objectName: "selectAllPhotos"
                anchors.verticalCenter: parent.verticalCenter
                checkState: root.checkState
                nextCheckState: () => root.checkState
                Accessible.name: Strings.selectAllPhotos
                onClicked: root.groups.toggleAll(root.findingId)
            }

            Text {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - all.width - parent.spacing
                text: root.summary + (root.selection === "" ? "" : Strings.joint + root.selection)
                textFormat: Text.PlainText
                elide: Text.ElideRight
                color: Theme.text
                font.pixelSize: Theme.smallSize
                font.weight: Font.DemiBold
            }
        }
    }

    GridView {
        id: grid

        property bool isKeyed: false

        objectName: "photoGrid"
        anchors.top: head.bottom
        anchors.topMargin: 10
        anchors.bottom: parent.bottom
        x: Theme.pageMargin - 4
        width: parent.width - 2 * x
        bottomMargin: 16
        cellWidth: Math.floor(width / root.columns)
        cellHeight: cellWidth
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        reuseItems: true
        activeFocusOnTab: true
        model: tiles
        Accessible.role: Accessible.List
        Accessible.name: root.title
        T.ScrollBar.vertical: handle

        Keys.onPressed: event => {
            grid.isKeyed = true;
            event.accepted = event.matches(StandardKey.SelectAll);
            if (event.accepted)
                root.groups.toggleAll(root.findingId);
        }
        Keys.onReleased: grid.isKeyed = true
        Keys.onReturnPressed: tiles.toggle(grid.currentIndex)
        Keys.onEnterPressed: tiles.toggle(grid.currentIndex)
        Keys.onSpacePressed: root.previewRequested(tiles, grid.currentIndex)

        delegate: PhotoTile {
            id: tile

            required property int index

            width: grid.cellWidth
            height: grid.cellHeight
            ground: Theme.window
            ringed: grid.isKeyed && tile.Window.activeFocusItem === tile
            onPressed: {
                grid.isKeyed = false;
                grid.currentIndex = tile.index;
                grid.forceActiveFocus();
            }
            onToggled: tiles.toggle(tile.index)
            onPreviewRequested: root.previewRequested(tiles, tile.index)
        }
    }

    // Beside the grid, in the page's margin.
    ScrollHandle {
        id: handle

        anchors.right: parent.right
        anchors.top: grid.top
        anchors.bottom: grid.bottom
        orientation: Qt.Vertical
    }
}

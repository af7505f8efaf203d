import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// All photos of one clean-up; visible while it is open.
Item {
    id: root

    required property PhotoGroupsModel groups
    required property string findingId
    required property string title
    required property string explanation
    required property string reason
    required property string symbol
    required property color tone
    required property ratingValue rating
    required property string summary
    required property string selection
    required property int checkState
    required property bool inSets

    readonly property bool isOpen: root.groups.shownGroup === root.findingId
    signal closed
    signal previewRequested(grid: PhotoGrid, row: int)
    signal compareRequested(sets: PhotoSetsModel, row: int, photo: string)

    visible: root.isOpen
    onIsOpenChanged: {
        // The filter is that of one visit.
        tools.forget();
        root.groups.filter = "";
        if (root.isOpen)
            root.focusPhotos();
    }

    Keys.onEscapePressed: root.closed()

    PhotoTilesModel {
        id: all

        groups: root.groups
        findingId: root.isOpen && !root.inSets ? root.findingId : ""
    }

    PhotoSetsModel {
        id: similar

        groups: root.groups
        findingId: root.isOpen && root.inSets ? root.findingId : ""
    }

    Column {
        id: head

        x: Theme.sideMargin(parent.width)
        y: Theme.pageMargin
        width: parent.width - 2 * x
        spacing: Theme.spaceL

        Item {
            width: parent.width
            height: Math.max(badge.height, labels.height)

            IconButton {
                id: back

                anchors.left: parent.left
                framed: true
                y: (badge.height - height) / 2
                symbol: "chevron.left"
                text: Strings.backToPhotos
                onClicked: root.closed()
            }

            Badge {
                id: badge

                anchors.left: back.right
                anchors.leftMargin: Theme.spaceM
                name: root.symbol
                tone: root.tone
                size: 44
            }

            Column {
                id: labels

                anchors.left: badge.right
                anchors.leftMargin: Theme.spaceM
                anchors.right: parent.right
                spacing: Theme.spaceXs

                RatedTitle {
                    width: parent.width
                    title: root.title
                    lines: 2
                    rating: root.rating
                }

                SmallText {
                    width: parent.width
                    text: root.reason === "" ? root.explanation : root.explanation + " " + root.reason
                    wrapMode: Text.WordWrap
                }
            }
        }

        Row {
            anchors.left: parent.left
            anchors.leftMargin: -mark.leftPadding
            width: parent.width
            spacing: Theme.spaceXs

            CheckMark {
                id: mark

                anchors.verticalCenter: parent.verticalCenter
                checkState: root.checkState
                nextCheckState: () => root.checkState
                Accessible.name: Strings.selectAllPhotos
                onClicked: root.groups.toggleAll(root.findingId)
            }

            SmallText {
                anchors.verticalCenter: parent.verticalCenter
                width: parent.width - mark.width - parent.spacing
                       - (stay.visible ? stay.width + parent.spacing : 0)
                text: Words.facts([root.summary, root.selection])
                wrapMode: Text.WordWrap
                color: Theme.text
                font.weight: Font.DemiBold
            }

            KeepFoldersButton {
                id: stay

                objectName: "photoFoldersThatStay"
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width * 0.4)
                visible: root.inSets && tools.visible
                findingId: root.findingId
            }
        }

        ListTools {
            id: tools

            width: parent.width
            // In large text a low window has room for little more than the photos.
            visible: root.height > 380 * Theme.textScale
            fieldName: "photoFilter"
            // In the order of EntryOrder's keys.
            orders: [Strings.bySize, Strings.byName, Strings.byDate, Strings.byFolder, Strings.byRating]
            current: root.groups.key
            reversed: root.groups.reversed
            onTextChanged: if (root.isOpen) root.groups.filter = text
            onSortRequested: order => root.groups.sortBy(order)
        }
    }

    Shortcut {
        sequences: [StandardKey.Find]
        enabled: root.isOpen && root.enabled && tools.visible
        onActivated: tools.focusField()
    }

    PhotoGrid {
        id: grid

        objectName: "photoGrid"
        anchors.top: head.bottom
        anchors.topMargin: Theme.spaceS
        anchors.bottom: parent.bottom
        x: head.x - 4
        width: parent.width - 2 * x
        bottomMargin: Theme.spaceL
        visible: !root.inSets
        clip: true
        reuseItems: true
        tiles: all
        tileSize: 150
        ground: Theme.window
        Accessible.name: root.title
        T.ScrollBar.vertical: root.inSets ? null : handle
        onAllRequested: root.groups.toggleAll(root.findingId)
        onPreviewRequested: row => root.previewRequested(grid, row)
    }

    PhotoSetList {
        id: list

        objectName: "photoSets"
        anchors.fill: grid
        bottomMargin: Theme.spaceL
        visible: root.inSets
        groups: root.groups
        sets: similar
        findingId: root.findingId
        title: root.title
        T.ScrollBar.vertical: root.inSets ? handle : null
        onPreviewRequested: (shots, row) => root.previewRequested(shots, row)
        onCompareRequested: (row, photo) => root.compareRequested(similar, row, photo)
    }

    // Next to the grid, in the page's margin.
    ScrollHandle {
        id: handle

        anchors.right: parent.right
        anchors.top: grid.top
        anchors.bottom: grid.bottom
        orientation: Qt.Vertical
    }

    function focusPhotos() {
        if (root.inSets)
            list.forceActiveFocus();
        else
            grid.forceActiveFocus();
    }
}

import QtQuick
import Orlen.App

/// Smart Photos: the photo clean-ups of the last scan.
Item {
    id: root

    required property MainView view

    readonly property PhotoGroupsModel model: groups
    readonly property bool hasGroups: groups.stage === PhotoGroupsModel.Groups
    readonly property bool isWhole: groups.shownGroup !== ""

    /// The grid whose photo is previewed.
    property PhotoGrid previewed: null

    function preview(grid: PhotoGrid, row: int) {
        const path = grid.tiles.pathAt(row);
        if (path === "")
            return;
        root.previewed = grid;
        grid.currentIndex = row;
        look.show(path, "");
    }

    PhotoGroupsModel {
        id: groups

        objectName: "photoGroups"
    }

    ScreenPage {
        id: overview

        anchors.fill: parent
        anchors.bottomMargin: bar.visible ? bar.height : 0
        visible: !root.isWhole
        title: Strings.photosTitle
        subtitle: Strings.photosLead

        Repeater {
            model: groups

            PhotoGroupCard {
                width: overview.contentWidth
                groups: root.model
                onOpened: groups.shownGroup = findingId
                onPreviewRequested: (grid, row) => root.preview(grid, row)
            }
        }

        Note {
            objectName: "photoCoverage"
            width: overview.contentWidth
            visible: root.hasGroups && groups.coverage !== ""
            text: groups.coverage
        }

        Note {
            width: overview.contentWidth
            visible: root.hasGroups
            text: Strings.photosFooter
        }
    }

    EmptyState {
        anchors.centerIn: parent
        anchors.verticalCenterOffset: 24
        width: parent.width - 2 * Theme.pageMargin
        visible: !root.hasGroups
        symbol: "photo.stack.fill"
        tone: Theme.photosTone
        text: groups.stage === PhotoGroupsModel.BeforeScan ? Strings.photosBeforeScan : Strings.noPhotos
        action: groups.stage === PhotoGroupsModel.BeforeScan ? Strings.goToSmartScan : ""
        onTriggered: root.view.navigation.screen = Screens.Home
    }

    Note {
        x: Theme.sideMargin(parent.width)
        width: parent.width - 2 * x
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceXl
        visible: !root.hasGroups
        text: groups.coverage === "" ? Strings.photosFooter : groups.coverage + "\n" + Strings.photosFooter
    }

    Repeater {
        model: groups

        PhotoGroupPage {
            anchors.fill: parent
            anchors.bottomMargin: bar.height
            groups: root.model
            onClosed: groups.shownGroup = ""
            onPreviewRequested: (grid, row) => root.preview(grid, row)
            onCompareRequested: (sets, row, photo) => comparison.show(sets, row, photo)
        }
    }

    PhotoSelectionBar {
        id: bar

        anchors.bottom: parent.bottom
        width: parent.width
        visible: root.hasGroups
        selectedText: groups.selectedText
        onReviewRequested: groups.review()
    }

    CompareSheet {
        id: comparison
    }

    PreviewSheet {
        id: look

        readonly property PhotoTile tile: root.previewed?.currentItem as PhotoTile

        tickable: look.tile !== null && !look.tile.kept
        ticked: look.tile?.selected ?? false
        onToggleRequested: root.previewed.tiles.toggle(root.previewed.currentIndex)
        onStepRequested: by => root.preview(root.previewed, root.previewed.currentIndex + by)
    }
}

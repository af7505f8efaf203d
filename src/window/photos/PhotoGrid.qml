import QtQuick
import QtQuick.Window
import Orlen.App

/// A grid of photos. Arrows move, Enter selects, Space previews, Ctrl+A selects all. Where photos can be
/// compared, Enter and a double click do so, and Ctrl+Space selects.
GridView {
    id: root

    required property PhotoTilesModel tiles
    /// Approximate width of a photo in pixels.
    required property int tileSize
    /// Colour behind the photos.
    property color ground: Theme.card
    property bool comparable: false

    readonly property real wantedWidth: root.tileSize * Math.min(1.25, Theme.textScale)
    readonly property int columns: Math.max(3, Math.floor(root.width / root.wantedWidth))

    signal allRequested
    signal previewRequested(row: int)
    signal compareRequested(row: int)

    cellWidth: Math.floor(root.width / root.columns)
    cellHeight: root.cellWidth
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    model: root.tiles
    Accessible.role: Accessible.List

    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_Space && event.modifiers & Qt.ControlModifier)
            root.tiles.toggle(root.currentIndex);
        else if (event.key === Qt.Key_Space)
            root.previewRequested(root.currentIndex);
        else if (root.comparable && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter))
            root.compareRequested(root.currentIndex);
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root.tiles.toggle(root.currentIndex);
        else if (event.key === Qt.Key_Home)
            root.currentIndex = 0;
        else if (event.key === Qt.Key_End)
            root.currentIndex = root.count - 1;
        else if (event.matches(StandardKey.SelectAll))
            root.allRequested();
        else if (root.currentItem !== null && (event.key === Qt.Key_Menu
                                               || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            menu.openBelow(root.tiles, root.currentIndex, root.currentItem);
        else
            event.accepted = false;
    }

    RowMenu {
        id: menu

        onPreviewRequested: row => root.previewRequested(row)
    }

    delegate: PhotoTile {
        id: tile

        required property int index

        width: root.cellWidth
        height: root.cellHeight
        ground: root.ground
        ringed: InputMode.keyed && tile.Window.activeFocusItem === tile
        onPressed: {
            root.currentIndex = tile.index;
            root.forceActiveFocus();
        }
        onToggled: root.tiles.toggle(tile.index)
        onMenuRequested: (x, y) => {
            tile.pressed();
            menu.openAt(root.tiles, tile.index, tile, x, y);
        }
        onPreviewRequested: root.previewRequested(tile.index)
        onDoubleClicked: {
            // The first of the two clicks selected it.
            root.tiles.toggle(tile.index);
            if (root.comparable)
                root.compareRequested(tile.index);
        }
    }
}

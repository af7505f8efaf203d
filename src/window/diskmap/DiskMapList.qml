import QtQuick
import Orlen.App

/// The disk map as a list, largest first.
ScrollList {
    id: root

    required property DiskMapView map

    /// A right click at this place of a row's item asks for its menu.
    signal menuRequested(row: int, item: Item, x: real, y: real)

    objectName: "diskMapList"
    model: root.map
    topMargin: Theme.spaceS
    bottomMargin: Theme.spaceS
    activeFocusOnTab: true
    keyNavigationEnabled: false
    currentIndex: root.map.currentRow
    highlightFollowsCurrentItem: true
    highlightMoveDuration: 0
    Accessible.name: Strings.contentsOf(root.map.folderName)

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Up:
            root.map.currentRow = Math.max(0, root.currentIndex - 1);
            break;
        case Qt.Key_Down:
            root.map.currentRow = Math.min(root.count - 1, root.currentIndex + 1);
            break;
        case Qt.Key_End:
            root.map.currentRow = root.count - 1;
            break;
        default:
            event.accepted = false;
        }
    }

    delegate: DiskMapRow {
        id: row

        width: ListView.view ? ListView.view.width : 0
        isCurrent: root.activeFocus && root.map.currentRow === row.index
        onPressed: {
            root.map.currentRow = row.index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.map.open(row.index);
        }
        onMenuRequested: (x, y) => {
            root.map.currentRow = row.index;
            root.forceActiveFocus(Qt.MouseFocusReason);
            root.menuRequested(row.index, row, x, y);
        }
    }
}

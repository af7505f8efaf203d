import QtQuick
import Orlen.App

/// The disk map as a list, largest first.
ScrollList {
    id: root

    required property DiskMapView map

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
            event.accepted = root.currentItem !== null
                    && (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier);
            if (event.accepted)
                menu.openBelow(root.map, root.currentIndex, root.currentItem);
        }
    }

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
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
            menu.openAt(root.map, row.index, row, x, y);
        }
    }
}

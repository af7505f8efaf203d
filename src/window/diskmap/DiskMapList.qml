import QtQuick
import Orlen.App

/// The disk map as a list, with what filters and sorts it.
FocusScope {
    id: root

    required property DiskMapView map
    /// The row's item under the keyboard; null if there is none.
    readonly property Item currentItem: list.currentItem
    /// A right click at this place of a row's item asks for its menu.
    signal menuRequested(row: int, item: Item, x: real, y: real)

    // What the tools do not take, or what the filter hides, is not for the map.
    Keys.onPressed: event => {
        const isElsewhere = !list.activeFocus || list.currentIndex < 0;
        event.accepted = isElsewhere && [Qt.Key_Return, Qt.Key_Enter, Qt.Key_Space, Qt.Key_Home, Qt.Key_Menu,
                                         Qt.Key_F10].includes(event.key);
    }

    DiskMapListModel {
        id: rows

        map: root.map
    }

    Rectangle {
        id: bar

        width: root.width
        height: tools.height + 2 * Theme.spaceS
        radius: Theme.cardRadius
        color: Theme.inset

        ListTools {
            id: tools

            x: Theme.spaceM
            y: Theme.spaceS
            width: parent.width - 2 * x
            fieldName: "diskMapFilter"
            // In the order of EntryOrder's keys.
            orders: [Strings.bySize, Strings.byName, Strings.byDate]
            current: rows.key
            reversed: rows.reversed
            onTextChanged: rows.filter = text
            onSortRequested: order => rows.sortBy(order)
        }
    }

    Shortcut {
        sequences: [StandardKey.Find]
        enabled: root.enabled && root.visible
        onActivated: tools.focusField()
    }

    Connections {
        target: root.map

        function onStackChanged() {
            tools.forget();
        }
    }

    ScrollList {
        id: list

        objectName: "diskMapList"
        anchors.top: bar.bottom
        anchors.bottom: parent.bottom
        width: parent.width
        model: rows
        topMargin: Theme.spaceS
        bottomMargin: Theme.spaceS
        focus: true
        activeFocusOnTab: list.count > 0 || list.activeFocus
        keyNavigationEnabled: false
        currentIndex: rows.currentRow
        highlightFollowsCurrentItem: true
        highlightMoveDuration: 0
        Accessible.name: Strings.contentsOf(root.map.folderName)

        Keys.onPressed: event => {
            event.accepted = true;
            switch (event.key) {
            case Qt.Key_Up:
                rows.currentRow = Math.max(0, list.currentIndex - 1);
                break;
            case Qt.Key_Down:
                rows.currentRow = Math.min(list.count - 1, list.currentIndex + 1);
                break;
            case Qt.Key_Home:
                rows.currentRow = 0;
                break;
            case Qt.Key_End:
                rows.currentRow = list.count - 1;
                break;
            default:
                event.accepted = false;
            }
        }

        delegate: DiskMapRow {
            id: row

            width: ListView.view ? ListView.view.width : 0
            isCurrent: list.activeFocus && list.currentIndex === row.index
            onPressed: {
                rows.currentRow = row.index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                root.map.open(rows.mapRow(row.index));
            }
            onMenuRequested: (x, y) => {
                rows.currentRow = row.index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                root.menuRequested(rows.mapRow(row.index), row, x, y);
            }
        }
    }

    EmptyState {
        anchors.centerIn: list
        width: list.width - 64
        visible: list.count === 0
        symbol: "magnifyingglass"
        tone: Theme.diskMapTone
        text: Strings.nothingMatches
        action: Strings.clearFilter
        onTriggered: tools.clear()
    }
}

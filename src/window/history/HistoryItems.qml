import QtQuick
import QtQuick.Window
import Orlen.App

/// What one past clean-up moved, and where each of it is now.
Item {
    id: root

    required property string recordId
    required property string title
    property string query: ""
    property bool isNarrow: false
    readonly property bool isLookedAt: root.enabled && root.Window.active

    readonly property int rowHeight: Theme.grown(root.isNarrow ? 64 : 48)
    /// The half row hints that there is more.
    readonly property real rowsShown: Math.min(items.count, 6.5)

    implicitHeight: Math.round(root.rowsShown * root.rowHeight) + 17

    onIsLookedAtChanged: if (root.isLookedAt) items.lookUp()

    RecordItemsModel {
        id: items

        recordId: root.recordId
        query: root.query
    }

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    Divider {
        x: Theme.cardMargin
        width: parent.width - 2 * Theme.cardMargin
    }

    ScrollList {
        id: list

        objectName: "recordItems"
        anchors.fill: parent
        anchors.margins: Theme.spaceS
        reuseItems: true
        activeFocusOnTab: true
        highlightMoveDuration: 0
        model: items
        Accessible.name: Strings.itemsOf(root.title)

        Keys.onReturnPressed: items.activate(list.currentIndex)
        Keys.onEnterPressed: items.activate(list.currentIndex)
        Keys.onSpacePressed: items.reveal(list.currentIndex)
        Keys.onPressed: event => {
            event.accepted = list.currentItem !== null
                    && (event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier);
            if (event.accepted)
                menu.openBelow(items, list.currentIndex, list.currentItem);
        }

        delegate: HistoryItemRow {
            id: row

            required property int index

            width: list.width
            height: root.rowHeight
            isNarrow: root.isNarrow
            ringed: ListView.isCurrentItem && row.Window.activeFocusItem === row
            onActivated: items.activate(row.index)
            onMenuRequested: (x, y) => {
                list.currentIndex = row.index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                menu.openAt(items, row.index, row, x, y);
            }
        }
    }
}

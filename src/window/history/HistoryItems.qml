import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Orlen.App

/// What one past clean-up moved, and where each of it is now.
Item {
    id: root

    required property string recordId
    required property string title
    property bool isNarrow: false

    readonly property int rowHeight: Math.round((root.isNarrow ? 64 : 48) * Theme.textScale)
    /// The half row tells that there is more.
    readonly property real rowsShown: Math.min(items.count, 6.5)

    implicitHeight: Math.round(root.rowsShown * root.rowHeight) + 17

    RecordItemsModel {
        id: items

        recordId: root.recordId
    }

    Rectangle {
        x: 18
        width: parent.width - 36
        height: 1
        color: Theme.stroke
    }

    ListView {
        id: list

        objectName: "recordItems"
        anchors.fill: parent
        anchors.topMargin: 9
        anchors.bottomMargin: 8
        anchors.leftMargin: 6
        anchors.rightMargin: 8
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        reuseItems: true
        activeFocusOnTab: true
        highlightMoveDuration: 0
        model: items
        Accessible.role: Accessible.List
        Accessible.name: Strings.itemsOf.arg(root.title)
        T.ScrollBar.vertical: ScrollHandle {}

        Keys.onReturnPressed: items.reveal(list.currentIndex)
        Keys.onEnterPressed: items.reveal(list.currentIndex)
        Keys.onSpacePressed: items.reveal(list.currentIndex)

        delegate: HistoryItemRow {
            id: row

            required property int index

            width: list.width
            height: root.rowHeight
            isNarrow: root.isNarrow
            ringed: ListView.isCurrentItem && row.Window.activeFocusItem === row
            onRevealRequested: items.reveal(row.index)
        }
    }
}

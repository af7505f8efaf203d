import QtQuick
import Orlen.App

/// Above the past clean-ups: what they freed in all, the search and the order.
Item {
    id: root

    required property HistoryModel records
    /// Whether the room is better left to the list.
    required property bool isBrief
    readonly property bool isNarrow: root.width < 540 * Theme.textScale

    implicitHeight: tools.y + (tools.visible ? tools.height : 0) + Theme.spaceS

    /// Puts the keyboard into the search field.
    function find() {
        if (tools.visible)
            search.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    function clear() {
        search.clear();
        search.forceActiveFocus(Qt.OtherFocusReason);
    }

    Column {
        id: head

        width: parent.width
        spacing: Theme.spaceM

        PageHeader {
            width: parent.width
            title: Screens.title(Screens.History)
            subtitle: Strings.historyLead
            isBrief: root.isBrief
        }

        SmallText {
            objectName: "historyTotal"
            width: parent.width
            visible: text !== ""
            text: root.records.total
            wrapMode: Text.WordWrap
            color: Theme.text
            font.weight: Font.DemiBold
        }

        Note {
            width: parent.width
            visible: !AppModel.writer && !root.records.empty
            text: Strings.readerOnly
        }
    }

    Item {
        id: tools

        y: head.height + Theme.spaceL
        width: parent.width
        height: root.isNarrow ? search.height + orders.height + Theme.spaceS : search.height
        visible: !root.records.empty

        SearchField {
            id: search

            objectName: "historySearch"
            width: root.isNarrow ? tools.width : Math.min(Theme.widened(300), tools.width - orders.width - 24)
            placeholderText: Strings.searchHistory
            onTextChanged: root.records.query = text
        }

        Row {
            id: orders

            anchors.right: parent.right
            y: root.isNarrow ? search.height + Theme.spaceS : 0
            spacing: Theme.spaceXs

            SortButton {
                objectName: "historyByDate"
                text: Strings.byDate
                active: root.records.order === HistoryModel.ByDate
                onClicked: root.records.order = HistoryModel.ByDate
            }

            SortButton {
                objectName: "historyBySize"
                text: Strings.bySize
                active: root.records.order === HistoryModel.BySize
                onClicked: root.records.order = HistoryModel.BySize
            }
        }
    }
}

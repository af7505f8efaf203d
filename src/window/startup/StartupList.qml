import QtQuick
import Orlen.App

/// What starts at login, grouped by whose login starts it. As tall as its rows: the page scrolls.
Card {
    id: root

    required property StartupListModel items
    required property StartupOrderModel ordered
    /// The visible height of the page, for paging.
    property real pageHeight: 480
    /// Emitted when the keyboard reaches a row.
    signal reached(row: Item)
    signal filterCleared

    implicitHeight: list.count > 0 ? list.height + 2
                    : root.items.loading ? placeholder.height + 16 : empty.height + 64

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    KeyedList {
        id: list

        objectName: "startupList"
        y: 1
        width: parent.width
        height: contentHeight
        interactive: false
        pageHeight: root.pageHeight
        model: root.ordered
        section.property: "scope"
        section.delegate: CaptionText {
            required property string section

            width: ListView.view.width
            height: Theme.grown(40)
            leftPadding: Theme.cardMargin
            rightPadding: Theme.cardMargin
            bottomPadding: 2
            verticalAlignment: Text.AlignBottom
            text: section
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: section
        }
        Accessible.name: Strings.startupItems
        onCurrentItemChanged: if (list.showsFocus && list.currentItem !== null) root.reached(list.currentItem)

        onMenuRequested: menu.openBelow(root.items, root.ordered.listRow(list.currentIndex), list.currentItem)
        Keys.onSpacePressed: root.ordered.toggle(list.currentIndex)
        Keys.onReturnPressed: root.ordered.toggle(list.currentIndex)
        Keys.onEnterPressed: root.ordered.toggle(list.currentIndex)

        delegate: StartupRow {
            id: row

            required property int index

            width: ListView.view.width
            lineShown: ListView.previousSection === ListView.section
            ringed: ListView.isCurrentItem && list.showsFocus
            onMenuRequested: (x, y) => {
                list.currentIndex = row.index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                menu.openAt(root.items, root.ordered.listRow(row.index), row, x, y);
            }
            onToggled: {
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.currentIndex = row.index;
                root.ordered.toggle(row.index);
            }
        }
    }

    PlaceholderRows {
        id: placeholder

        y: 8
        width: parent.width
        rows: 4
        visible: root.items.count === 0 && root.items.loading
    }

    EmptyState {
        id: empty

        anchors.centerIn: parent
        width: parent.width - 48
        visible: list.count === 0 && !placeholder.visible
        symbol: root.ordered.filter === "" ? "power.circle.fill" : "magnifyingglass"
        tone: Theme.startupTone
        text: root.ordered.filter === "" ? Strings.noLaunchAgents : Strings.nothingMatches
        action: root.ordered.filter === "" ? "" : Strings.clearFilter
        onTriggered: root.filterCleared()
    }
}

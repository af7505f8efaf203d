import QtQuick
import Orlen.App

/// Applications: a searchable list; choosing one opens its sheet.
Item {
    id: root

    required property MainView view
    readonly property bool isLow: Theme.isLow(root.height)
    readonly property real sideMargin: Theme.sideMargin(root.width)
    /// Whether the search field is below the title rather than beside it.
    readonly property bool isNarrow: root.width < 540 * Theme.textScale
    /// Whether the choices above the list are below its figures rather than beside them.
    readonly property bool isStacked: root.width < 720 * Theme.textScale
    readonly property bool isCovered: menu.visible || look.visible || chosen.open || behind.open
                                      || root.view.navigation.sheet !== Navigation.NoSheet

    AppListModel {
        id: apps
    }

    AppOrderModel {
        id: ordered

        list: apps
        query: search.text
    }

    AppDetailModel {
        id: chosen

        list: apps
    }

    AppBatchModel {
        id: batch

        list: apps
    }

    LeftBehindModel {
        id: behind

        list: apps
    }

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    AppSheet {
        detail: chosen
    }

    LeftBehindSheet {
        leftovers: behind
    }

    Shortcut {
        enabled: root.enabled
        sequences: [StandardKey.Find]
        onActivated: search.forceActiveFocus(Qt.ShortcutFocusReason)
    }

    Shortcut {
        enabled: root.enabled
        sequence: "F5"
        onActivated: apps.load()
    }

    PageHeader {
        id: header

        anchors.left: parent.left
        anchors.right: root.isNarrow ? parent.right : search.left
        anchors.top: parent.top
        anchors.topMargin: Theme.pageMargin
        anchors.leftMargin: root.sideMargin
        anchors.rightMargin: root.isNarrow ? root.sideMargin : Theme.spaceXl
        title: Screens.title(Screens.Apps)
        subtitle: Strings.appsLead
        isBrief: root.isLow
    }

    SearchField {
        id: search

        objectName: "appSearch"
        anchors.right: parent.right
        anchors.rightMargin: root.sideMargin
        y: root.isNarrow ? header.y + header.height + Theme.spaceM : header.y + (header.height - height) / 2
        width: root.isNarrow ? root.width - 2 * root.sideMargin : Math.min(300, root.width * 0.5)
        placeholderText: Strings.searchApps
        Keys.onDownPressed: list.forceActiveFocus(Qt.TabFocusReason)
    }

    Card {
        id: card

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: root.isNarrow ? search.bottom : header.bottom
        anchors.leftMargin: root.sideMargin
        anchors.rightMargin: root.sideMargin
        anchors.topMargin: root.isNarrow ? Theme.spaceM : Theme.spaceXl
        height: list.count === 0 ? card.room
                : Math.min(card.room, line.y + list.contentHeight + 18 + (bar.visible ? bar.height : 0))

        readonly property real room: root.height - card.y - Theme.pageMargin
                                     - (left.visible ? left.height + Theme.spaceM : 0)

        CaptionText {
            id: summary

            anchors.left: parent.left
            anchors.leftMargin: Theme.cardMargin
            anchors.right: root.isStacked ? parent.right : orders.left
            anchors.rightMargin: Theme.spaceM
            y: root.isStacked ? Theme.spaceM : 10 + (orders.height - height) / 2
            visible: apps.count > 0 && !(root.isStacked && bar.visible)
            text: apps.summary
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            color: Theme.secondary
            font.weight: Font.Medium
        }

        AppOrders {
            id: orders

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            y: root.isStacked && summary.visible ? summary.y + summary.height + Theme.spaceXs : 10
            width: root.isStacked ? parent.width - 2 * Theme.spaceM : undefined
            ordered: ordered
            enabled: apps.count > 0
        }

        Divider {
            id: line

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: orders.bottom
            anchors.margins: 1
            anchors.topMargin: Theme.spaceS
        }

        KeyedList {
            id: list

            function openRow(row: int) {
                list.currentIndex = row;
                chosen.show(ordered.listRow(row));
            }

            objectName: "appList"
            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: line.bottom
            anchors.bottom: bar.visible ? bar.top : parent.bottom
            anchors.leftMargin: Theme.spaceS
            anchors.rightMargin: 1
            anchors.bottomMargin: 1
            topMargin: Theme.spaceS
            bottomMargin: Theme.spaceS
            reuseItems: true
            model: ordered
            Accessible.name: Screens.title(Screens.Apps)

            footer: Item {
                width: ListView.view.width
                height: packaged.visible ? packaged.height : 0

                CaptionText {
                    id: packaged

                    objectName: "packagedApps"
                    width: parent.width
                    visible: apps.packaged !== "" && search.text === ""
                    padding: Theme.spaceM
                    text: apps.packaged
                    wrapMode: Text.Wrap
                }
            }

            onMenuRequested: menu.openBelow(apps, ordered.listRow(list.currentIndex), list.currentItem)
            Keys.onReturnPressed: list.openRow(list.currentIndex)
            Keys.onEnterPressed: list.openRow(list.currentIndex)
            Keys.onSpacePressed: apps.tick(ordered.listRow(list.currentIndex))

            delegate: AppRow {
                id: row

                required property int index

                x: Theme.mirrored ? 7 : 0
                width: ListView.view.width - 7
                ringed: ListView.isCurrentItem && list.showsFocus
                onToggled: apps.tick(ordered.listRow(row.index))
                onMenuRequested: (x, y) => {
                    list.currentIndex = row.index;
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    menu.openAt(apps, ordered.listRow(row.index), row, x, y);
                }
                onActivated: {
                    // Taps on a sheet reach the rows below it.
                    if (root.isCovered)
                        return;
                    list.forceActiveFocus(Qt.MouseFocusReason);
                    list.openRow(row.index);
                }
            }
        }

        SheetFooter {
            id: bar

            anchors.bottom: parent.bottom
            width: parent.width
            shown: batch.count > 0
            note: batch.busy ? Strings.lookingForLeftovers : batch.chosenText
            figure: batch.total
            cancel: Strings.clearTicks
            cancelName: "clearTicks"
            action: Strings.reviewAndUninstall
            actionName: "reviewTicked"
            ready: !batch.busy
            onTriggered: batch.review()
            onCancelled: batch.clear()
        }

        PlaceholderRows {
            anchors.left: list.left
            anchors.right: list.right
            anchors.top: list.top
            anchors.topMargin: Theme.spaceS
            visible: apps.loading && apps.count === 0
        }

        EmptyState {
            anchors.centerIn: list
            width: Math.min(list.width - 48, 460)
            visible: !apps.loading && list.count === 0
            symbol: search.text === "" ? "app.badge.fill" : "magnifyingglass"
            tone: Theme.appsTone
            text: search.text === "" ? Strings.noApps : Strings.noAppMatches(search.text)
            action: search.text === "" ? "" : Strings.clearFilter
            onTriggered: {
                search.clear();
                search.forceActiveFocus(Qt.OtherFocusReason);
            }
        }
    }

    LeftBehindCard {
        id: left

        anchors.left: card.left
        anchors.right: card.right
        anchors.top: card.bottom
        anchors.topMargin: Theme.spaceM
        visible: behind.count > 0 && search.text === "" && !bar.visible
        leftovers: behind
    }
}

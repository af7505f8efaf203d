import QtQuick
import QtQuick.Window
import Orlen.App

/// History: every clean-up, and how to undo it.
Item {
    id: root

    required property MainView view
    /// The clean-up whose items are shown; at most one at a time.
    property string openRecord: ""
    readonly property real sideMargin: Theme.sideMargin(root.width)
    /// The Trash may have been emptied while somebody looked elsewhere.
    readonly property bool isLookedAt: root.enabled && root.Window.active

    onIsLookedAtChanged: if (root.isLookedAt) history.lookUp()

    HistoryModel {
        id: history

        onQueryChanged: if (history.query !== "") root.openRecord = history.idAt(0)
    }

    Shortcut {
        enabled: root.enabled
        sequences: [StandardKey.Find]
        onActivated: header.find()
    }

    // Not in the list, which would take the keyboard from the search.
    HistoryHeader {
        id: header

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        anchors.leftMargin: root.sideMargin
        anchors.rightMargin: root.sideMargin
        anchors.topMargin: Theme.pageMargin
        height: header.implicitHeight
        records: history
        isBrief: !history.empty && Theme.isLow(root.height)
    }

    ScrollList {
        id: list

        objectName: "historyList"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: header.bottom
        anchors.bottom: parent.bottom
        anchors.leftMargin: root.sideMargin
        topMargin: Theme.spaceS
        bottomMargin: Theme.pageMargin
        spacing: Theme.spaceM
        model: history
        currentIndex: 0
        highlightMoveDuration: Theme.hoverDuration
        Accessible.name: Strings.pastCleanUps

        delegate: HistoryCard {
            id: card

            required property int index

            x: Theme.mirrored ? root.sideMargin : 0
            width: list.width - root.sideMargin
            current: ListView.isCurrentItem
            ringed: card.current && card.Window.activeFocusItem === card
            open: root.openRecord === card.recordId
            writable: AppModel.writer
            query: history.query
            onPressed: list.currentIndex = card.index
            onToggled: root.openRecord = card.open ? "" : card.recordId
            onRestoreRequested: fromKeyboard => {
                card.keepFocus(fromKeyboard);
                history.restore(card.index);
            }
            onStopRequested: fromKeyboard => {
                card.keepFocus(fromKeyboard);
                history.stop(card.index);
            }
        }

        Keys.onReturnPressed: list.toggleCurrent()
        Keys.onEnterPressed: list.toggleCurrent()
        Keys.onSpacePressed: list.toggleCurrent()

        function toggleCurrent() {
            const card = list.currentItem as HistoryCard;
            if (card !== null)
                card.toggled();
        }
    }

    EmptyState {
        anchors.centerIn: parent
        width: parent.width - 2 * Theme.pageMargin
        visible: history.count === 0
        symbol: history.empty ? "clock.arrow.circlepath" : "magnifyingglass"
        tone: Theme.historyTone
        text: history.empty ? Strings.nothingCleaned : Strings.noCleanUpMatches(history.query)
        action: history.empty ? "" : Strings.clearFilter
        onTriggered: header.clear()
    }
}

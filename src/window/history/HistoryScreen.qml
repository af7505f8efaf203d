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

    HistoryModel {
        id: history

        onRestored: message => root.view.notices.say(message)
    }

    ScrollList {
        id: list

        objectName: "historyList"
        anchors.fill: parent
        anchors.leftMargin: root.sideMargin
        topMargin: Theme.pageMargin
        bottomMargin: Theme.pageMargin
        spacing: Theme.spaceM
        model: history
        currentIndex: 0
        highlightMoveDuration: Theme.hoverDuration
        activeFocusOnTab: history.count > 0
        Accessible.name: Strings.pastCleanUps

        header: Column {
            x: Theme.mirrored ? root.sideMargin : 0
            width: list.width - root.sideMargin
            bottomPadding: Theme.spaceXl
            spacing: Theme.spaceM

            PageHeader {
                width: parent.width
                title: Screens.title(Screens.History)
                subtitle: Strings.historyLead
            }

            Note {
                width: parent.width
                visible: !AppModel.writer && history.count > 0
                text: Strings.readerOnly
            }
        }

        delegate: HistoryCard {
            id: card

            required property int index

            x: Theme.mirrored ? root.sideMargin : 0
            width: list.width - root.sideMargin
            current: ListView.isCurrentItem
            ringed: card.current && card.Window.activeFocusItem === card
            open: root.openRecord === card.recordId
            writable: AppModel.writer
            onPressed: list.currentIndex = card.index
            onToggled: root.openRecord = card.open ? "" : card.recordId
            onRestoreRequested: fromKeyboard => {
                // The button gets disabled and must not take the focus with it.
                if (fromKeyboard)
                    card.forceActiveFocus();
                history.restore(card.index);
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
        symbol: "clock.arrow.circlepath"
        tone: Theme.historyTone
        text: Strings.nothingCleaned
    }
}

import QtQuick
import Orlen.App

/// Smart Scan after a scan: what can be freed, and a card for each finding.
Item {
    id: root

    required property HomeModel home
    required property StorageModel storage
    signal findingChosen(id: string)

    /// Where the storage ring goes.
    readonly property alias ringSlot: header.ringSlot
    readonly property alias mainButton: header.mainButton

    ScrollArea {
        id: flickable

        anchors.fill: parent
        contentHeight: page.height + 2 * Theme.pageMargin

        Column {
            id: page

            x: Theme.sideMargin(flickable.width)
            y: Theme.pageMargin
            width: flickable.width - 2 * x
            spacing: Theme.spaceXl

            HomeResultsHeader {
                id: header

                width: parent.width
                home: root.home
                storage: root.storage
            }

            FindingGrid {
                id: grid

                objectName: "findings"
                width: parent.width
                visible: root.home.hasFindings
                onChosen: id => root.findingChosen(id)
                onReached: card => flickable.show(card)
            }

            EmptyState {
                width: parent.width
                topPadding: 32
                bottomPadding: 32
                visible: !root.home.hasFindings
                symbol: "checkmark"
                tone: Theme.safeBase
                text: Strings.nothingFound
            }

            Column {
                width: parent.width
                spacing: Theme.spaceS

                Note {
                    width: Math.min(parent.width, 760 * Theme.textScale)
                    visible: !AppModel.results.fdaGranted
                    text: Strings.scannedWithoutAccess
                }

                UnreadableFolders {
                    width: Math.min(parent.width, 760 * Theme.textScale)
                    visible: root.home.unreadableText !== ""
                    text: root.home.unreadableText
                    folders: root.home.unreadableFolders
                }

                Note {
                    width: Math.min(parent.width, 760 * Theme.textScale)
                    text: Strings.resultsFooter
                }
            }
        }

        NumberAnimation {
            id: scrolling

            target: flickable
            property: "contentY"
            duration: Theme.screenDuration
            easing.type: Easing.OutCubic
        }

        /// Scrolls just enough to keep the item clear of the edges.
        function show(item: Item) {
            const top = item.mapToItem(flickable.contentItem, 0, 0).y - 16;
            const bottom = top + item.height + 32;
            const last = Math.max(0, flickable.contentHeight - flickable.height);
            const goal = top < flickable.contentY ? top : Math.max(flickable.contentY, bottom - flickable.height);
            scrolling.to = Math.max(0, Math.min(last, goal));
            scrolling.restart();
        }
    }
}

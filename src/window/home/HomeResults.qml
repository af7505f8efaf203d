import QtQuick
import Orlen.App

/// Smart Scan after a scan: what can be freed, and a card for each finding.
Item {
    id: root

    required property HomeModel home
    required property StorageModel storage
    signal findingChosen(id: string)
    signal categoryChosen(category: int)

    /// Where the storage ring goes.
    readonly property alias ringSlot: header.ringSlot
    readonly property alias mainButton: header.mainButton

    ScrollArea {
        id: flickable

        objectName: "resultsPage"
        anchors.fill: parent
        contentHeight: page.height + 2 * Theme.pageMargin
        showDuration: Theme.screenDuration

        Column {
            id: page

            x: Theme.sideMargin(flickable.width)
            y: Theme.pageMargin
            width: flickable.width - 2 * x
            spacing: Theme.spaceXl

            HomeResultsBar {
                width: parent.width
                home: root.home
            }

            HomeResultsHeader {
                id: header

                width: parent.width
                home: root.home
                storage: root.storage
                onCategoryChosen: category => root.categoryChosen(category)
            }

            FindingGrid {
                objectName: "findings"
                width: parent.width
                visible: root.home.hasFindings
                onChosen: id => root.findingChosen(id)
                onReached: card => flickable.show(card, Theme.spaceL)
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
                    anchors.left: parent.left
                    width: Math.min(parent.width, 760 * Theme.textScale)
                    visible: !AppModel.results.fdaGranted
                    text: Strings.scannedWithoutAccess
                }

                UnreadableFolders {
                    anchors.left: parent.left
                    width: Math.min(parent.width, 760 * Theme.textScale)
                    visible: root.home.unreadableText !== ""
                    text: root.home.unreadableText
                    folders: root.home.unreadableFolders
                }

                Note {
                    anchors.left: parent.left
                    width: Math.min(parent.width, 760 * Theme.textScale)
                    text: Strings.resultsFooter
                }
            }
        }
    }
}

import QtQuick
import Orlen.App

/// The entries of one finding, to choose from.
Sheet {
    id: root

    required property Navigation navigation

    readonly property bool isWanted: root.navigation.sheet === Navigation.FindingSheet
    readonly property string wantedId: root.navigation.findingId

    function preview(row: int) {
        if (row < 0 || row >= list.count)
            return;
        list.moveTo(row);
        look.show(contents.pathAt(row), contents.sizeAt(row));
    }

    title: contents.header.title
    wantedWidth: Theme.widened(820)
    wantedHeight: Theme.widened(680)

    onWantedIdChanged: if (root.wantedId !== "") contents.findingId = root.wantedId
    onIsWantedChanged: root.isWanted ? root.open() : root.close()
    onOpened: list.takeFocus(-1)
    onAboutToHide: if (root.isWanted) root.navigation.closeSheet()
    // Only now, so that the sheet does not go empty while it fades out.
    onClosed: if (!root.isWanted) contents.findingId = ""

    EntryListModel {
        id: contents

        onOrderChanged: list.positionViewAtBeginning()
    }

    PreviewSheet {
        id: look

        tickable: contents.header.cleanable
        ticked: (list.currentItem as EntryRow)?.checkState === Qt.Checked
        onStepRequested: by => root.preview(list.currentIndex + by)
        onToggleRequested: contents.toggle(list.currentIndex)
    }

    RowMenu {
        id: menu

        onPreviewRequested: row => root.preview(row)
    }

    SheetHeader {
        id: header

        width: parent.width
        title: contents.header.title
        symbol: contents.header.symbol
        tone: contents.header.tone
        rating: contents.header.rating
        onCloseRequested: root.close()

        Paragraph {
            width: parent.width
            text: contents.header.explanation
            maximumLineCount: 3
        }

        Paragraph {
            width: parent.width
            visible: text !== "" && !root.isLow
            text: contents.header.reason
            maximumLineCount: 3
            color: Theme.tertiary
        }
    }

    FindingBar {
        id: bar

        anchors.top: header.bottom
        width: parent.width
        entries: contents
    }

    EntryList {
        id: list

        objectName: "findingEntries"
        anchors.top: bar.bottom
        anchors.bottom: footer.top
        width: parent.width
        topMargin: Theme.spaceS
        bottomMargin: Theme.spaceS
        rowHeight: Theme.grown(contents.hasNotes ? 68 : 56)
        cacheBuffer: 400
        model: contents
        section.property: contents.inSets ? "kept" : ""
        section.delegate: SetHeading {}
        Accessible.name: contents.header.title
        onPreviewRequested: row => root.preview(row)
        onToggleRequested: row => contents.toggle(row)
        onAllRequested: contents.selectShown()
        onNoneRequested: contents.deselectShown()
        onMenuRequested: menu.openBelow(contents, list.currentIndex, list.currentItem)

        delegate: EntryRow {
            id: row

            required property int index
            required property bool marked

            width: ListView.view.width
            height: Math.max(list.rowHeight, implicitHeight)
            checkable: contents.header.cleanable
            checkState: marked ? Qt.Checked : Qt.Unchecked
            isCurrent: list.currentIndex === index && list.activeFocus
            ringed: isCurrent && list.showsFocus
            onPressed: list.takeFocus(index)
            onToggled: contents.toggle(index)
            onPreviewRequested: root.preview(index)
            onRevealRequested: contents.reveal(index)
            onMenuRequested: (x, y) => {
                list.takeFocus(row.index);
                menu.openAt(contents, row.index, row, x, y);
            }
        }
    }

    EmptyState {
        anchors.centerIn: list
        width: list.width - 64
        visible: list.count === 0
        symbol: contents.filter !== "" ? "magnifyingglass" : "checkmark"
        tone: contents.header.symbol === "" ? Theme.accentFill : contents.header.tone
        text: contents.filter !== "" ? Strings.nothingMatches : Strings.nothingLeft
        action: contents.filter !== "" ? Strings.clearFilter : ""
        onTriggered: bar.clearFilter()
    }

    SheetFooter {
        id: footer

        anchors.bottom: parent.bottom
        width: parent.width
        shown: contents.header.cleanable && contents.entryCount > 0
        note: Strings.trashPromise
        figure: contents.selectedCount > 0 ? contents.selectedSizeText : ""
        action: Strings.reviewAndClean
        ready: contents.selectedCount > 0
        onTriggered: contents.review()
    }
}

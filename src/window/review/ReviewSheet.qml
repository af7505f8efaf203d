import QtQuick
import Orlen.App

/// Confirms a plan: everything that would move, for a last look.
Sheet {
    id: root

    required property Navigation navigation

    readonly property bool isWanted: root.navigation.sheet === Navigation.PlanSheet

    function preview(row: int) {
        const path = plan.pathAt(row);
        if (path === "")
            return;
        list.moveTo(row);
        look.show(path, plan.sizeAt(row));
    }

    /// Moves to the next file, skipping headings.
    function step(by: int) {
        let row = list.currentIndex + by;
        while (row >= 0 && row < list.count && plan.pathAt(row) === "")
            row += by;
        root.preview(row);
    }

    title: Strings.reviewTitle
    wantedWidth: Theme.widened(820)
    wantedHeight: Theme.widened(680)

    onIsWantedChanged: root.isWanted ? root.open() : root.close()
    onOpened: {
        tools.forget();
        list.positionViewAtBeginning();
        list.takeFocus(-1);
    }
    onAboutToHide: if (root.isWanted) root.navigation.closeSheet()

    PlanModel {
        id: plan
    }

    PreviewSheet {
        id: look

        tickable: true
        ticked: (list.currentItem as PlanRow)?.mark === Qt.Checked
        onStepRequested: by => root.step(by)
        onToggleRequested: plan.toggle(list.currentIndex)
    }

    RowMenu {
        id: menu

        onPreviewRequested: row => root.preview(row)
    }

    SheetHeader {
        id: header

        width: parent.width
        title: Strings.reviewTitle
        onCloseRequested: root.close()

        SmallText {
            objectName: "planTitle"
            width: parent.width
            visible: text !== "" && !root.isLow
            text: plan.title
            color: Theme.accent
            font.weight: Font.DemiBold
        }

        Paragraph {
            objectName: "reviewLead"
            width: parent.width
            maximumLineCount: 6
            text: Strings.reviewLead(plan.checkedCount)
        }
    }

    Rectangle {
        id: bar

        anchors.top: header.bottom
        width: parent.width
        height: tools.height + 2 * Theme.spaceS
        color: Theme.inset

        ListTools {
            id: tools

            x: Theme.spaceXl
            y: Theme.spaceS
            width: parent.width - 2 * x
            fieldName: "planFilter"
            // In the order of EntryOrder's keys.
            orders: [Strings.bySize, Strings.byName, Strings.byDate, Strings.byFolder, Strings.byRating]
            current: plan.key
            reversed: plan.reversed
            onTextChanged: plan.filter = text
            onSortRequested: order => plan.sortBy(order)
        }
    }

    Shortcut {
        sequences: [StandardKey.Find]
        enabled: bar.visible && root.opened
        onActivated: tools.focusField()
    }

    EntryList {
        id: list

        objectName: "planEntries"
        anchors.top: bar.bottom
        anchors.bottom: footer.top
        width: parent.width
        bottomMargin: Theme.spaceS
        rowHeight: Theme.grown(plan.hasNotes ? 68 : 56)
        cacheBuffer: 400
        model: plan
        Accessible.name: plan.title
        onPreviewRequested: row => plan.pathAt(row) === "" ? plan.fold(row) : root.preview(row)
        onToggleRequested: row => plan.toggle(row)
        onAllRequested: plan.checkAll()
        onNoneRequested: plan.uncheckAll()
        onMenuRequested: menu.openBelow(plan, list.currentIndex, list.currentItem)
        onFoldRequested: (row, fold) => {
            list.moveTo(plan.headingOf(row));
            plan.setFolded(list.currentIndex, fold);
        }

        delegate: PlanRow {
            id: row

            width: ListView.view.width
            height: heading ? Theme.grown(50) : Math.max(list.rowHeight, implicitHeight)
            isCurrent: list.currentIndex === index && list.activeFocus
            ringed: isCurrent && list.showsFocus
            onPressed: list.takeFocus(row.index)
            onToggled: plan.toggle(row.index)
            onFolding: plan.fold(row.index)
            onPreviewRequested: root.preview(row.index)
            onRevealRequested: plan.reveal(row.index)
            onMenuRequested: (x, y) => {
                list.takeFocus(row.index);
                menu.openAt(plan, row.index, row, x, y);
            }
        }
    }

    EmptyState {
        anchors.centerIn: list
        width: list.width - 64
        visible: list.count === 0
        symbol: plan.entryCount > 0 ? "magnifyingglass" : "checkmark"
        tone: Theme.accentFill
        text: plan.entryCount > 0 ? Strings.nothingMatches : Strings.nothingSelected
        action: plan.entryCount > 0 ? Strings.clearFilter : ""
        onTriggered: tools.clear()
    }

    SheetFooter {
        id: footer

        anchors.bottom: parent.bottom
        width: parent.width
        note: AppModel.writer ? Strings.trashKeeps : Strings.anotherOrlen
        noteSymbol: AppModel.writer ? "trash" : "exclamationmark.triangle.fill"
        noteInk: AppModel.writer ? Theme.secondary : Theme.reviewText
        figure: plan.checkedSizeText
        cancel: Strings.cancel
        action: Strings.moveToTrash
        ready: plan.confirmable
        onCancelled: root.close()
        onTriggered: plan.confirm()
    }
}

import QtQuick
import Orlen.App

/// What is never offered: a list to search and to remove from.
ColumnCard {
    id: root

    /// Whether it cannot be seen at a glance.
    readonly property bool isLong: exclusions.total > 5
    readonly property int rowHeight: Theme.grown(48)

    spacing: Theme.spaceM

    ExclusionListModel {
        id: exclusions
    }

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    HeadlineText {
        width: parent.width
        text: Strings.neverOffered
        Accessible.role: Accessible.Heading
    }

    SmallText {
        objectName: "exclusionsLead"
        width: parent.width
        text: exclusions.total > 0 ? Strings.howToExclude
                                   : exclusions.emptyText + Strings.betweenSentences + Strings.howToExclude
        wrapMode: Text.WordWrap
        elide: Text.ElideNone
    }

    SearchField {
        objectName: "exclusionFilter"
        width: Math.min(parent.width, Theme.widened(320))
        visible: root.isLong || exclusions.filter !== ""
        placeholderText: Strings.filter
        onTextChanged: exclusions.filter = text
    }

    SmallText {
        width: parent.width
        visible: exclusions.total > 0 && exclusions.count === 0
        text: Strings.nothingMatches
    }

    KeyedList {
        id: list

        objectName: "exclusions"
        width: parent.width
        // The half row hints that there is more.
        height: Math.round(Math.min(exclusions.count, 6.5) * root.rowHeight)
        model: exclusions
        Accessible.name: Strings.neverOffered
        onMenuRequested: menu.openBelow(exclusions, list.currentIndex, list.currentItem)
        Keys.onDeletePressed: exclusions.remove(list.currentIndex)

        delegate: ExclusionRow {
            id: row

            required property int index

            width: ListView.view ? ListView.view.width : 0
            height: root.rowHeight
            isCurrent: ListView.isCurrentItem && list.activeFocus
            ringed: row.isCurrent && list.showsFocus
            onRemoveRequested: exclusions.remove(row.index)
            onMenuRequested: (x, y) => {
                list.currentIndex = row.index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                menu.openAt(exclusions, row.index, row, x, y);
            }
        }
    }
}

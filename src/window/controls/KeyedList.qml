import QtQuick
import Orlen.App

/// A list with keyboard navigation by row, by page and to the ends.
ScrollList {
    id: root

    /// Whether the pointer is giving the list the focus right now.
    property bool byPointer: false
    /// The visible height, for paging.
    property real pageHeight: root.height
    readonly property bool showsFocus: InputMode.keyed && root.activeFocus
    /// The keyboard asks for the menu of the current row.
    signal menuRequested

    keyNavigationEnabled: true
    highlightMoveDuration: 0
    // A list that has the focus keeps it when its last row goes, so that the keyboard goes on from here.
    activeFocusOnTab: root.count > 0 || root.activeFocus

    FocusRing {
        parent: root
        shown: root.showsFocus && root.count === 0
        gap: -2
    }

    onActiveFocusChanged: root.land()

    Keys.onPressed: event => {
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            root.moveTo(root.currentIndex + root.pageRows());
        else if (event.key === Qt.Key_PageUp)
            root.moveTo(root.currentIndex - root.pageRows());
        else if (event.key === Qt.Key_Home)
            root.moveTo(0);
        else if (event.key === Qt.Key_End)
            root.moveTo(root.count - 1);
        else if (root.currentItem !== null && (event.key === Qt.Key_Menu
                                               || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier))
            root.menuRequested();
        else
            event.accepted = false;
    }

    /// Begins with the first row if the keyboard comes here and there is no current one.
    function land() {
        if (root.showsFocus && !root.byPointer && root.currentIndex < 0 && root.count > 0)
            root.currentIndex = 0;
    }

    function pageRows(): int {
        const row = root.currentItem;
        return row === null ? 1 : Math.max(1, Math.floor(root.pageHeight / row.height) - 1);
    }

    function moveTo(row: int) {
        root.currentIndex = Math.max(0, Math.min(root.count - 1, row));
        root.positionViewAtIndex(root.currentIndex, ListView.Contain);
    }
}

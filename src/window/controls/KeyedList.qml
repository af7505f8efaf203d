import QtQuick
import Orlen.App

/// A list that the keyboard moves in by rows and by pages, and to its ends.
ScrollList {
    id: root

    /// Whether the pointer, not the keyboard, was last here.
    property bool pointed: false
    /// How much of the list is seen at once.
    property real pageHeight: root.height
    readonly property bool showsFocus: root.activeFocus && !root.pointed

    keyNavigationEnabled: true
    highlightMoveDuration: 0
    activeFocusOnTab: root.count > 0

    Keys.onPressed: event => {
        root.pointed = false;
        event.accepted = true;
        if (event.key === Qt.Key_PageDown)
            root.moveTo(root.currentIndex + root.pageRows());
        else if (event.key === Qt.Key_PageUp)
            root.moveTo(root.currentIndex - root.pageRows());
        else if (event.key === Qt.Key_Home)
            root.moveTo(0);
        else if (event.key === Qt.Key_End)
            root.moveTo(root.count - 1);
        else
            event.accepted = false;
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

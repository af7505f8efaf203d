import QtQuick
import Orlen.App

/// A list of files with keyboard control: arrows and page keys move, Space previews, Enter checks. Rows show
/// the focus while `showsFocus` is set.
KeyedList {
    id: root

    property int rowHeight: 54
    signal previewRequested(row: int)
    signal toggleRequested(row: int)
    /// Ctrl+A; with Shift, `noneRequested`.
    signal allRequested
    signal noneRequested
    /// Towards the beginning of a line, or towards its end, for lists that fold.
    signal foldRequested(row: int, fold: bool)

    reuseItems: true
    // The list must not scroll to a pressed row.
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    currentIndex: -1
    pixelAligned: true

    Keys.onPressed: event => {
        if (event.accepted)
            return;
        event.accepted = true;
        if (event.key === Qt.Key_Down)
            root.moveTo(root.currentIndex + 1);
        else if (event.key === Qt.Key_Up)
            root.moveTo(root.currentIndex - 1);
        else if (event.key === Qt.Key_Space)
            root.previewRequested(root.currentIndex);
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root.toggleRequested(root.currentIndex);
        else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right)
            root.foldRequested(root.currentIndex, event.key === (Theme.mirrored ? Qt.Key_Right : Qt.Key_Left));
        else if (event.key === Qt.Key_A && event.modifiers & Qt.ControlModifier)
            event.modifiers & Qt.ShiftModifier ? root.noneRequested() : root.allRequested();
        else
            event.accepted = false;
    }

    /// Takes the focus on a pointer press, on a row or on none (-1); the keyboard continues from there.
    function takeFocus(row: int) {
        root.byPointer = true;
        root.currentIndex = row;
        root.forceActiveFocus(Qt.MouseFocusReason);
        root.byPointer = false;
    }
}

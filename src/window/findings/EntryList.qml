import QtQuick
import Orlen.App

/// A list of files that the keyboard moves in: arrows and pages, Space looks, Enter checks. Its rows show their
/// focus while `showsFocus`.
KeyedList {
    id: root

    property int rowHeight: 54
    /// Whether the focus comes by the pointer just now.
    property bool byPointer: false
    signal previewRequested(row: int)
    signal toggleRequested(row: int)
    /// Ctrl+A, and with Shift.
    signal allRequested
    signal noneRequested
    /// A key that only some lists know: Left and Right.
    signal foldRequested(row: int, fold: bool)

    reuseItems: true
    activeFocusOnTab: true
    // The list does not scroll to a row that is pressed.
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    currentIndex: -1
    pixelAligned: true

    onActiveFocusChanged: {
        if (!root.activeFocus || root.byPointer)
            return;
        root.pointed = false;
        if (root.currentIndex < 0 && root.count > 0)
            root.currentIndex = 0;
    }

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
            root.foldRequested(root.currentIndex, event.key === Qt.Key_Left);
        else if (event.key === Qt.Key_A && event.modifiers & Qt.ControlModifier)
            event.modifiers & Qt.ShiftModifier ? root.noneRequested() : root.allRequested();
        else
            event.accepted = false;
    }

    /// A press of the pointer on a row, or on none with -1: the keyboard goes on from there.
    function takeFocus(row: int) {
        root.byPointer = true;
        root.currentIndex = row;
        root.forceActiveFocus(Qt.MouseFocusReason);
        root.byPointer = false;
        root.pointed = true;
    }
}

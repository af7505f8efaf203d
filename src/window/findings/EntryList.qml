import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A list of files that the keyboard moves in: arrows and pages, Space looks, Enter checks. Its rows show their
/// focus while `showsFocus`.
ListView {
    id: root

    /// Whether the keyboard, not the pointer, was last here.
    property bool showsFocus: false
    property int rowHeight: 54
    /// Whether the focus comes by the pointer just now.
    property bool byPointer: false
    readonly property int pageRows: Math.max(1, Math.floor(root.height / Math.max(1, root.rowHeight)) - 1)
    signal previewRequested(row: int)
    signal toggleRequested(row: int)
    /// Ctrl+A, and with Shift.
    signal allRequested
    signal noneRequested
    /// A key that only some lists know: Left and Right.
    signal foldRequested(row: int, fold: bool)

    clip: true
    reuseItems: true
    boundsBehavior: Flickable.StopAtBounds
    activeFocusOnTab: true
    keyNavigationEnabled: false
    highlightFollowsCurrentItem: false
    currentIndex: -1
    pixelAligned: true
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: ScrollHandle {}

    onActiveFocusChanged: {
        if (!root.activeFocus || root.byPointer)
            return;
        root.showsFocus = true;
        if (root.currentIndex < 0 && root.count > 0)
            root.currentIndex = 0;
    }

    Keys.onPressed: event => {
        root.showsFocus = true;
        event.accepted = true;
        if (event.key === Qt.Key_Down)
            root.moveTo(root.currentIndex + 1);
        else if (event.key === Qt.Key_Up)
            root.moveTo(root.currentIndex - 1);
        else if (event.key === Qt.Key_PageDown)
            root.moveTo(root.currentIndex + root.pageRows);
        else if (event.key === Qt.Key_PageUp)
            root.moveTo(root.currentIndex - root.pageRows);
        else if (event.key === Qt.Key_Home)
            root.moveTo(0);
        else if (event.key === Qt.Key_End)
            root.moveTo(root.count - 1);
        else if (event.key === Qt.Key_Space)
            root.previewRequested(root.currentIndex);
        else if (event.key === Qt.Key_Return || event.key === Qt.Key_Enter)
            root.toggleRequested(root.currentIndex);
        else if (event.key === Qt.Key_Left || event.key === Qt.Key_Right)
            root.foldRequested(root.currentIndex, event.key === Qt.Key_Left);
        else if (event.key === Qt.Key_A && event.modifiers & Qt.ControlModifier && event.modifiers & Qt.ShiftModifier)
            root.noneRequested();
        else if (event.key === Qt.Key_A && event.modifiers & Qt.ControlModifier)
            root.allRequested();
        else
            event.accepted = false;
    }

    /// A press of the pointer on a row, or on none with -1: the keyboard goes on from there.
    function takeFocus(row: int) {
        root.byPointer = true;
        root.currentIndex = row;
        root.forceActiveFocus(Qt.MouseFocusReason);
        root.byPointer = false;
        root.showsFocus = false;
    }

    function moveTo(row: int) {
        root.currentIndex = Math.max(0, Math.min(root.count - 1, row));
        root.positionViewAtIndex(root.currentIndex, ListView.Contain);
    }
}

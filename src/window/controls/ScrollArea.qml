import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// An area that scrolls if its content is too tall.
Flickable {
    id: root

    /// If set, the area takes the focus and scrolls with the arrow keys.
    property string title: ""
    /// How long `show` takes, in milliseconds.
    property int showDuration: 0
    readonly property alias handle: bar

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    activeFocusOnTab: root.title !== "" && root.contentHeight > root.height
    Accessible.role: Accessible.Pane
    Accessible.name: root.title
    Accessible.ignored: root.title === ""
    T.ScrollBar.vertical: ScrollHandle {
        id: bar
    }

    Keys.enabled: root.title !== ""
    Keys.onUpPressed: root.handle.decrease()
    Keys.onDownPressed: root.handle.increase()

    FocusRing {
        parent: root
        shown: InputMode.keyed && root.activeFocus
        gap: -2
    }

    NumberAnimation {
        id: scrolling

        target: root
        property: "contentY"
        duration: root.showDuration
        easing.type: Easing.OutCubic
    }

    /// Scrolls just enough to show an item with its margin, or its top if it is taller than the area.
    function show(item: Item, margin: real) {
        const top = item.mapToItem(root.contentItem, 0, 0).y - margin;
        const bottom = top + item.height + 2 * margin;
        const last = Math.max(0, root.contentHeight - root.height);
        const goal = Math.min(top, Math.max(root.contentY, bottom - root.height));
        scrolling.to = Math.max(0, Math.min(last, goal));
        scrolling.restart();
    }
}

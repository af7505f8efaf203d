import QtQuick
import Orlen.App

/// Scrolls a page to keep the focused item in view.
Item {
    id: root

    required property Flickable view

    readonly property Item focused: Window.activeFocusItem

    visible: false
    onFocusedChanged: {
        if (root.isInside(root.focused))
            root.show(root.focused);
    }

    function isInside(item: Item): bool {
        while (item !== null && item !== root.view.contentItem)
            item = item.parent;
        return item !== null;
    }

    function show(item: Item) {
        const top = item.mapToItem(root.view.contentItem, 0, 0).y - Theme.pageMargin;
        const bottom = top + item.height + 2 * Theme.pageMargin;
        const lowest = Math.max(0, root.view.contentHeight - root.view.height);
        // If the item is taller than the page, show its top.
        const wanted = Math.min(top, Math.max(root.view.contentY, bottom - root.view.height));
        root.view.contentY = Math.max(0, Math.min(lowest, wanted));
    }
}

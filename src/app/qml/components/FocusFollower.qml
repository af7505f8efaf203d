import QtQuick
import Orlen.App

/// Scrolls a page so that what has the keyboard is in view.
Item {
    id: root

    required property Flickable view
    property int margin: Theme.pageMargin

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
        const top = item.mapToItem(root.view.contentItem, 0, 0).y;
        const lowest = Math.max(0, root.view.contentHeight - root.view.height);
        const wanted = Math.max(Math.min(root.view.contentY, top - root.margin),
                                top + item.height + root.margin - root.view.height);
        root.view.contentY = Math.max(0, Math.min(lowest, wanted));
    }
}

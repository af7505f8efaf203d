import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Orlen.App

/// A screen with a header whose content scrolls when it is higher than the window.
Item {
    id: root

    property string title: ""
    property string subtitle: ""
    /// What the page shows below the header; as wide as the page without its margins.
    default property alias content: column.data
    readonly property alias contentWidth: column.width

    readonly property Item focusItem: root.Window.activeFocusItem
    onFocusItemChanged: flickable.show(root.focusItem)

    Flickable {
        id: flickable

        /// Scrolls as little as shows an item of the page whole, so that the keyboard is never out of sight.
        function show(item: Item) {
            let ancestor = item;
            while (ancestor !== null && ancestor !== column)
                ancestor = ancestor.parent;
            if (ancestor === null)
                return;
            const top = item.mapToItem(column, 0, 0).y + column.y - 16;
            const bottom = top + item.height + 32;
            flickable.contentY = Math.max(0, Math.min(top, Math.max(flickable.contentY, bottom - flickable.height)));
        }

        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.pageMargin
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        activeFocusOnTab: contentHeight > height
        Accessible.role: Accessible.Pane
        Accessible.name: root.title
        Keys.onUpPressed: handle.decrease()
        Keys.onDownPressed: handle.increase()
        T.ScrollBar.vertical: ScrollHandle {
            id: handle
        }

        Column {
            id: column

            x: Theme.pageMargin
            y: Theme.pageMargin
            width: flickable.width - 2 * Theme.pageMargin
            spacing: 20

            PageHeader {
                width: parent.width
                visible: root.title !== ""
                title: root.title
                subtitle: root.subtitle
            }
        }
    }

    FocusFollower {
        view: flickable
    }
}

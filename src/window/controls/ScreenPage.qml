import QtQuick
import Orlen.App

/// A screen with a header and content that scrolls if it is taller than the window.
Item {
    id: root

    required property string title
    required property string subtitle
    /// The content below the header, as wide as the page without margins.
    default property alias content: column.data
    /// Shown to the right of the header.
    property alias tools: toolRow.data
    readonly property alias contentWidth: column.width
    readonly property Item focused: Window.activeFocusItem

    /// Scrolls just enough to show an item, so that the keyboard focus is never out of sight.
    function show(item: Item) {
        area.show(item, Theme.pageMargin);
    }

    ScrollArea {
        id: area

        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.pageMargin
        title: root.title

        Column {
            id: column

            x: Theme.sideMargin(area.width)
            y: Theme.pageMargin
            width: area.width - 2 * x
            spacing: Theme.spaceXl

            Item {
                width: parent.width
                height: header.height

                PageHeader {
                    id: header

                    anchors.left: parent.left
                    width: parent.width - (toolRow.width > 0 ? toolRow.width + 16 : 0)
                    title: root.title
                    subtitle: root.subtitle
                }

                Row {
                    id: toolRow

                    anchors.right: parent.right
                    spacing: Theme.spaceS
                }
            }
        }
    }

    onFocusedChanged: {
        if (root.isContent(root.focused))
            root.show(root.focused);
    }

    function isContent(item: Item): bool {
        while (item !== null && item !== column)
            item = item.parent;
        return item !== null;
    }
}

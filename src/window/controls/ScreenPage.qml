import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A screen with a header whose content scrolls when it is higher than the window.
Item {
    id: root

    property string title: ""
    property string subtitle: ""
    /// What the page shows below the header; as wide as the page without its margins.
    default property alias content: column.data
    readonly property alias contentWidth: column.width

    /// Scrolls as little as shows an item of the page, so that the keyboard is never out of sight.
    function show(item: Item) {
        follower.show(item);
    }

    Flickable {
        id: flickable

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

            x: Theme.sideMargin(flickable.width)
            y: Theme.pageMargin
            width: flickable.width - 2 * x
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
        id: follower

        view: flickable
    }
}

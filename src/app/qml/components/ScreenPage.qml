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

    Flickable {
        id: flickable

        anchors.fill: parent
        contentHeight: column.height + 2 * Theme.pageMargin
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        T.ScrollBar.vertical: ScrollHandle {}

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

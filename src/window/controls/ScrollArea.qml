import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// An area that scrolls if its content is too tall.
Flickable {
    id: root

    /// If set, the area takes the focus and scrolls with the arrow keys.
    property string title: ""
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
}

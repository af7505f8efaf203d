import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// What scrolls where it is higher than its place.
Flickable {
    id: root

    /// Named where the keyboard comes to the area itself to scroll it.
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

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A list that scrolls.
ListView {
    readonly property alias handle: bar

    boundsBehavior: Flickable.StopAtBounds
    clip: true
    Accessible.role: Accessible.List
    T.ScrollBar.vertical: ScrollHandle {
        id: bar
    }
}

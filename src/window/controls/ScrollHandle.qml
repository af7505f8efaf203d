import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A thin scroll bar that stands out under the pointer.
T.ScrollBar {
    id: root

    implicitWidth: 12
    implicitHeight: 12
    padding: 3
    minimumSize: 0.06
    visible: root.size < 1 && root.policy !== T.ScrollBar.AlwaysOff
    Accessible.ignored: true

    contentItem: Rectangle {
        implicitWidth: 6
        implicitHeight: 6
        radius: 3
        color: root.pressed || root.hovered ? Theme.secondary : Theme.tertiary
        opacity: root.pressed || root.hovered ? 0.9 : root.active ? 0.6 : 0.35

        Ease on opacity {}
    }
}

import QtQuick
import Orlen.App

/// Marks its parent as having the keyboard focus.
Rectangle {
    id: root

    required property bool shown
    property int gap: 3
    property int shape: Theme.controlRadius

    anchors.fill: parent
    anchors.margins: -root.gap
    radius: root.shape + root.gap
    color: "transparent"
    border.width: 2
    border.color: Theme.accent
    visible: root.shown
}

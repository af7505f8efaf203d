import QtQuick
import Orlen.App

/// A key, drawn as on a keyboard.
Rectangle {
    id: root

    required property string text

    implicitWidth: Math.max(label.implicitWidth + 14, implicitHeight)
    implicitHeight: Theme.grown(24)
    radius: 6
    color: Theme.inset
    border.width: 1
    border.color: Theme.stroke

    Rectangle {
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: 1
        height: 2
        radius: 1
        color: Theme.stroke
    }

    CaptionText {
        id: label

        anchors.centerIn: parent
        anchors.verticalCenterOffset: -1
        text: root.text
        color: Theme.text
        font.weight: Font.DemiBold
    }
}

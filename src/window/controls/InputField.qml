import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A text field. Escape clears it.
T.TextField {
    id: root

    property color fill: Theme.inset
    property real corner: Theme.controlRadius

    horizontalAlignment: TextInput.AlignLeft
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.text
    placeholderTextColor: Theme.tertiary
    selectionColor: Theme.accentFill
    selectedTextColor: Theme.overAccent
    selectByMouse: true
    // Text fields would otherwise use the desktop's font.
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    Accessible.name: root.placeholderText

    Keys.onEscapePressed: event => {
        event.accepted = root.text !== "";
        root.clear();
    }

    background: Rectangle {
        radius: root.corner
        color: root.fill
        border.width: root.activeFocus ? 2 : 1
        border.color: root.activeFocus ? Theme.accent : Theme.stroke
    }

    BodyText {
        anchors.fill: parent
        anchors.leftMargin: Theme.mirrored ? root.rightPadding : root.leftPadding
        anchors.rightMargin: Theme.mirrored ? root.leftPadding : root.rightPadding
        verticalAlignment: Text.AlignVCenter
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 10
        color: root.placeholderTextColor
        Accessible.ignored: true
    }
}

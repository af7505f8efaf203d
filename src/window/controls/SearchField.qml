import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A field that narrows a list while one types; Escape empties it.
T.TextField {
    id: root

    implicitWidth: 220
    implicitHeight: Theme.controlHeight
    leftPadding: glass.x + glass.width + 8
    rightPadding: clear.visible ? 34 : 12
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.text
    placeholderTextColor: Theme.tertiary
    selectionColor: Theme.accentFill
    selectedTextColor: Theme.overAccent
    selectByMouse: true
    // Text fields have a font of the desktop's own otherwise.
    font.family: Theme.fontFamily
    font.pixelSize: Theme.bodySize
    Accessible.name: root.placeholderText

    Keys.onEscapePressed: event => {
        event.accepted = root.text !== "";
        root.clear();
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: Theme.inset
        border.width: root.activeFocus ? 2 : 1
        border.color: root.activeFocus ? Theme.accent : Theme.stroke
    }

    BodyText {
        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        verticalAlignment: Text.AlignVCenter
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        color: root.placeholderTextColor
        Accessible.ignored: true
    }

    Symbol {
        id: glass

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        colour: Theme.tertiary
        size: 14
    }

    IconButton {
        id: clear

        anchors.right: parent.right
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        width: 26
        height: 26
        visible: root.length > 0
        symbol: "xmark"
        symbolSize: 12
        text: Strings.clear
        focusPolicy: Qt.NoFocus
        onClicked: root.clear()
    }
}

import QtQuick
import Orlen.App

/// A field that filters a list as the user types.
InputField {
    id: root

    readonly property real beforeText: 12 + glass.width + 8
    readonly property real afterText: clear.visible ? 34 : 12

    implicitWidth: 220
    implicitHeight: Theme.controlHeight
    leftPadding: Theme.mirrored ? root.afterText : root.beforeText
    rightPadding: Theme.mirrored ? root.beforeText : root.afterText

    Symbol {
        id: glass

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        name: "magnifyingglass"
        colour: Theme.tertiary
        size: 14
    }

    IconButton {
        id: clear

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXs
        anchors.verticalCenter: parent.verticalCenter
        side: 26
        visible: root.length > 0
        symbol: "xmark"
        symbolSize: 12
        text: Strings.clear
        focusPolicy: Qt.NoFocus
        onClicked: root.clear()
    }
}

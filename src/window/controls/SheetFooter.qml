import QtQuick
import Orlen.App

/// The bottom of a sheet: a note, a total and the main button.
Item {
    id: root

    required property string note
    required property string figure
    required property string action
    property bool shown: true
    /// Whether the main button is enabled.
    property bool ready: true
    property string noteSymbol: "trash"
    property color noteInk: Theme.secondary
    /// Text of a second button; none if empty.
    property string cancel: ""
    property string figureName: ""
    property string actionName: "primaryAction"
    signal triggered
    signal cancelled

    height: root.shown ? Math.ceil(Math.max(Theme.mainControlHeight, remark.height)) + 28 : 12
    visible: root.shown

    Divider {
        width: parent.width
    }

    Note {
        id: remark

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.leftMargin: Theme.spaceXl
        anchors.right: total.left
        anchors.rightMargin: Theme.spaceL
        text: root.note
        symbol: root.noteSymbol
        ink: root.noteInk
    }

    HeadlineText {
        id: total

        objectName: root.figureName
        anchors.right: buttons.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        text: root.figure
        font.weight: Font.Bold
        Accessible.role: Accessible.StaticText
    }

    Row {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXl
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spaceS

        AppButton {
            visible: root.cancel !== ""
            text: root.cancel
            onClicked: root.cancelled()
        }

        AppButton {
            objectName: root.actionName
            primary: true
            enabled: root.ready
            text: root.action
            onClicked: root.triggered()
        }
    }
}

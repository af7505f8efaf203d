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
    property string cancelName: ""
    readonly property real room: root.width - 2 * Theme.spaceXl
    readonly property real buttonsWidth: main.implicitWidth
                                         + (second.visible ? second.implicitWidth + buttons.spacing : 0)
    readonly property real noteWidth: root.room - total.width - Theme.spaceL
    /// Whether the buttons are below the note, since there is no room for it beside them.
    readonly property bool isTall: root.noteWidth - root.buttonsWidth - Theme.spaceL < Theme.widened(130)
    signal triggered
    signal cancelled

    height: {
        if (!root.shown)
            return 12;
        const beside = Math.max(Theme.mainControlHeight, remark.height);
        return Math.ceil(root.isTall ? remark.height + Theme.spaceS + buttons.height : beside) + 28;
    }
    visible: root.shown

    Divider {
        width: parent.width
    }

    Note {
        id: remark

        anchors.left: parent.left
        anchors.leftMargin: Theme.spaceXl
        y: root.isTall ? 14 : (root.height - height) / 2
        width: root.isTall ? root.noteWidth : root.noteWidth - root.buttonsWidth - Theme.spaceL
        text: root.note
        symbol: root.noteSymbol
        ink: root.noteInk
    }

    HeadlineText {
        id: total

        objectName: root.figureName
        anchors.right: root.isTall ? buttons.right : buttons.left
        anchors.rightMargin: root.isTall ? 0 : Theme.spaceL
        anchors.verticalCenter: remark.verticalCenter
        text: root.figure
        font.weight: Font.Bold
        Accessible.role: Accessible.StaticText
    }

    Flow {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXl
        y: root.isTall ? remark.y + remark.height + Theme.spaceS : (root.height - height) / 2
        width: Math.min(root.buttonsWidth, root.room)
        spacing: Theme.spaceS

        AppButton {
            id: second

            objectName: root.cancelName
            visible: root.cancel !== ""
            text: root.cancel
            onClicked: root.cancelled()
        }

        AppButton {
            id: main

            objectName: root.actionName
            primary: true
            enabled: root.ready
            text: root.action
            onClicked: root.triggered()
        }
    }
}

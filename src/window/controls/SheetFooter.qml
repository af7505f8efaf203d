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
    /// Whether the window has little height: then the note is only there if it fits into one line, unless it
    /// warns.
    readonly property bool isLow: Theme.isLow(root.Window.height)
    readonly property bool isWarning: !Qt.colorEqual(root.noteInk, Theme.secondary)
    readonly property real margin: root.isLow ? Theme.spaceL : Theme.spaceXl
    readonly property real room: root.width - 2 * root.margin
    /// Whether the second button has room for its text.
    readonly property bool isSecondWide: !root.isLow || root.noteWidth - main.implicitWidth - second.implicitWidth
                                         - buttons.spacing - Theme.spaceL > 0
    readonly property real secondWidth: root.cancel === "" ? 0 : buttons.spacing
                                        + (root.isSecondWide ? second.implicitWidth : brief.implicitWidth)
    readonly property real buttonsWidth: main.implicitWidth + root.secondWidth
    readonly property real noteWidth: root.room - total.width - Theme.spaceL
    readonly property real noteHeight: remark.visible ? remark.height : total.height
    readonly property real besideWidth: root.noteWidth - root.buttonsWidth - Theme.spaceL
    /// Whether the buttons are below the note, since there is no room for it beside them.
    readonly property bool isTall: root.besideWidth < (root.isLow && !root.isWarning ? -Theme.spaceL
                                                                                     : Theme.widened(130))
    signal triggered
    signal cancelled

    height: {
        if (!root.shown)
            return 12;
        const beside = Math.max(root.isLow ? buttons.height : Theme.mainControlHeight, root.noteHeight);
        return Math.ceil(root.isTall ? root.noteHeight + Theme.spaceS + buttons.height : beside)
                + (root.isLow ? Theme.spaceL : 28);
    }
    visible: root.shown

    Divider {
        width: parent.width
    }

    Note {
        id: remark

        anchors.left: parent.left
        anchors.leftMargin: root.margin
        y: root.isTall ? root.isLow ? Theme.spaceS : 14 : (root.height - height) / 2
        width: root.isTall ? root.noteWidth : Math.max(0, root.besideWidth)
        visible: width > Theme.grown(60) && (!root.isLow || root.isWarning || lineCount === 1)
        text: root.note
        symbol: root.noteSymbol
        ink: root.noteInk
    }

    HeadlineText {
        id: total

        objectName: root.figureName
        anchors.right: root.isTall ? buttons.right : buttons.left
        anchors.rightMargin: root.isTall ? 0 : Theme.spaceL
        y: root.isTall ? remark.y + (root.noteHeight - height) / 2 : (root.height - height) / 2
        text: root.figure
        font.weight: Font.Bold
        Accessible.role: Accessible.StaticText
    }

    Flow {
        id: buttons

        anchors.right: parent.right
        anchors.rightMargin: root.margin
        y: root.isTall ? remark.y + root.noteHeight + Theme.spaceS : (root.height - height) / 2
        width: Math.min(root.buttonsWidth, root.room)
        spacing: Theme.spaceS

        AppButton {
            id: second

            objectName: root.cancelName
            visible: root.cancel !== "" && root.isSecondWide
            text: root.cancel
            onClicked: root.cancelled()
        }

        IconButton {
            id: brief

            objectName: root.cancelName
            visible: root.cancel !== "" && !root.isSecondWide
            framed: true
            symbol: "xmark"
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

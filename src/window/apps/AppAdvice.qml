import QtQuick
import Orlen.App

/// How to remove an application that another program manages.
Column {
    id: root

    required property AppDetailModel detail

    spacing: Theme.spaceL

    Paragraph {
        width: root.width
        text: root.detail.advice
        wrapMode: Text.Wrap
        color: Theme.text
        font.pixelSize: Theme.bodySize
    }

    Rectangle {
        width: root.width
        height: Math.max(command.height, copy.height) + 16
        radius: Theme.controlRadius
        color: Theme.inset

        TextEdit {
            id: command

            anchors.left: parent.left
            anchors.leftMargin: Theme.spaceM
            anchors.right: copy.left
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            readOnly: true
            selectByMouse: true
            text: root.detail.command
            textFormat: TextEdit.PlainText
            wrapMode: TextEdit.WrapAnywhere
            color: Theme.text
            selectionColor: Theme.accentFill
            selectedTextColor: Theme.overAccent
            font.family: "monospace"
            font.pixelSize: Theme.smallSize
            Accessible.role: Accessible.StaticText
            Accessible.name: command.text
        }

        AppButton {
            id: copy

            objectName: "copyCommand"
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            symbol: copied.running ? "checkmark" : "copy"
            text: copied.running ? Strings.copied : Strings.copyCommand
            onClicked: {
                root.detail.copyCommand();
                copied.restart();
            }
        }
    }

    Timer {
        id: copied

        interval: 2000
    }
}

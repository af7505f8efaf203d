import QtQuick
import Orlen.App

/// A command for a terminal, and a button that copies it.
Rectangle {
    id: root

    required property string command
    signal copyRequested
    /// Emitted when the keyboard reaches the button.
    signal reached

    implicitHeight: Math.max(text.height, copy.height) + 16
    radius: Theme.controlRadius
    color: Theme.inset

    TextEdit {
        id: text

        anchors.left: parent.left
        anchors.leftMargin: Theme.spaceM
        anchors.right: copy.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        // A command is read from the left in every language.
        horizontalAlignment: Theme.mirrored ? TextEdit.AlignRight : TextEdit.AlignLeft
        readOnly: true
        selectByMouse: true
        text: root.command
        textFormat: TextEdit.PlainText
        wrapMode: TextEdit.Wrap
        color: Theme.text
        selectionColor: Theme.accentFill
        selectedTextColor: Theme.overAccent
        font.family: "monospace"
        font.pixelSize: Theme.smallSize
        Accessible.role: Accessible.StaticText
        Accessible.name: text.text
    }

    AppButton {
        id: copy

        /// So that the command does not move when the text changes.
        property real widest: 0

        objectName: "copyCommand"
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(copy.implicitWidth, copy.widest)
        symbol: copied.running ? "checkmark" : "copy"
        text: copied.running ? Strings.copied : Strings.copyCommand
        onImplicitWidthChanged: copy.widest = Math.max(copy.widest, copy.implicitWidth)
        onClicked: {
            root.copyRequested();
            copied.restart();
        }
        onVisualFocusChanged: {
            if (copy.visualFocus)
                root.reached();
        }
    }

    Timer {
        id: copied

        interval: 2000
    }
}

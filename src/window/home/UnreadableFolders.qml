import QtQuick
import Orlen.App

/// How many folders a scan could not read, and which ones on request.
Column {
    id: root

    required property string text
    /// One per line.
    required property string folders

    property bool open: false

    spacing: Theme.spaceXs

    Note {
        width: parent.width
        text: root.text
    }

    AppButton {
        anchors.left: parent.left
        anchors.leftMargin: 12
        quiet: true
        text: root.open ? Strings.hideFolders : Strings.showFolders
        onClicked: root.open = !root.open
    }

    CaptionText {
        objectName: "unreadableFolders"
        leftPadding: 22
        rightPadding: 22
        width: parent.width
        visible: root.open
        text: root.folders
        wrapMode: Text.WrapAnywhere
        color: Theme.secondary
    }
}

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// Says at the bottom of the window that a file could not be shown in the file manager, and offers its path.
T.Popup {
    id: root

    parent: T.Overlay.overlay
    z: 100
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? parent.height - height - 24 : 0
    width: parent ? Math.min(parent.width - 48, 620) : 620
    height: Math.max(line.height, 36) + 24
    padding: 12
    leftPadding: 20
    modal: false
    visible: notice.path !== ""
    closePolicy: T.Popup.CloseOnEscape
    onClosed: notice.dismiss()

    background: Rectangle {
        radius: Theme.cardRadius
        color: Theme.card
        border.width: 1
        border.color: Theme.stroke
        Accessible.role: Accessible.AlertMessage
        Accessible.name: line.text
    }

    RevealNotice {
        id: notice
    }

    Text {
        id: line

        anchors.left: parent.left
        anchors.right: copy.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        text: Strings.cannotReveal.arg(notice.path)
        textFormat: Text.PlainText
        wrapMode: Text.WrapAnywhere
        maximumLineCount: 3
        elide: Text.ElideRight
        color: Theme.text
        font.pixelSize: Theme.smallSize
        Accessible.ignored: true
    }

    AppButton {
        id: copy

        anchors.right: close.left
        anchors.rightMargin: 4
        anchors.verticalCenter: parent.verticalCenter
        quiet: true
        text: Strings.copyPath
        onClicked: {
            notice.copy();
            root.close();
        }
    }

    IconButton {
        id: close

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        symbol: "xmark"
        text: Strings.close
        onClicked: root.close()
    }
}

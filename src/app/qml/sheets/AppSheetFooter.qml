import QtQuick
import Orlen.App

/// What the button leads to, how much it frees, and the button.
Item {
    id: root

    required property AppDetailModel detail

    implicitHeight: Math.max(promise.height, review.height) + 32

    Rectangle {
        width: parent.width
        height: 1
        color: Theme.stroke
    }

    Note {
        id: promise

        anchors.left: parent.left
        anchors.leftMargin: 28
        anchors.right: total.left
        anchors.rightMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        symbol: "trash"
        text: Strings.trashPromise
    }

    Text {
        id: total

        objectName: "uninstallTotal"
        anchors.right: review.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        text: root.detail.total
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.headlineSize
        font.weight: Font.Bold
    }

    AppButton {
        id: review

        objectName: "reviewUninstall"
        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        primary: true
        enabled: root.detail.ready
        text: Strings.reviewAndUninstall
        onClicked: root.detail.review()
    }
}

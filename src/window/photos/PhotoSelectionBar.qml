import QtQuick
import Orlen.App

/// How many photos are selected, and the button to review them.
Rectangle {
    id: root

    required property string selectedText

    signal reviewRequested

    implicitHeight: Math.max(review.implicitHeight, label.implicitHeight) + 28
    color: Theme.window

    Divider {
        width: parent.width
    }

    BodyText {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: Theme.sideMargin(root.width)
        anchors.right: review.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        text: root.selectedText === "" ? Strings.noPhotoSelected : root.selectedText
        wrapMode: Text.WordWrap
        color: root.selectedText === "" ? Theme.secondary : Theme.text
        font.weight: Font.DemiBold
    }

    AppButton {
        id: review

        objectName: "reviewPhotos"
        anchors.right: parent.right
        anchors.rightMargin: Theme.sideMargin(root.width)
        anchors.verticalCenter: parent.verticalCenter
        primary: true
        enabled: root.selectedText !== ""
        text: Strings.reviewAndClean
        onClicked: root.reviewRequested()
    }
}

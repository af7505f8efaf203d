import QtQuick
import Orlen.App

/// What is known of an application, and what to mind before it goes.
Column {
    id: root

    required property AppDetailModel detail
    signal closeRequested

    spacing: 16

    Item {
        width: root.width
        height: Math.max(picture.height, names.height)

        AppIcon {
            id: picture

            icon: root.detail.icon
            size: 56
        }

        Column {
            id: names

            anchors.left: picture.right
            anchors.leftMargin: 16
            anchors.right: close.left
            anchors.rightMargin: 16
            anchors.verticalCenter: picture.verticalCenter
            spacing: 3

            TitleText {
                width: parent.width
                text: root.detail.name
                wrapMode: Text.Wrap
                maximumLineCount: 2
            }

            SmallText {
                width: parent.width
                text: root.detail.size === "" ? root.detail.origin : root.detail.size + " · " + root.detail.origin
                elide: Text.ElideMiddle
            }

            CaptionText {
                width: parent.width
                visible: root.detail.identifier !== ""
                text: root.detail.identifier
                elide: Text.ElideMiddle
            }
        }

        IconButton {
            id: close

            objectName: "appSheetClose"
            anchors.right: parent.right
            framed: true
            symbol: "xmark"
            text: Strings.close
            onClicked: root.closeRequested()
        }
    }

    Note {
        width: root.width
        visible: root.detail.apple
        text: Strings.appleApp
        symbol: "exclamationmark.triangle.fill"
        ink: Theme.reviewText
    }

    Note {
        width: root.width
        visible: root.detail.quitFirst !== ""
        text: root.detail.quitFirst
        symbol: "exclamationmark.triangle.fill"
        ink: Theme.reviewText
    }
}

import QtQuick
import Orlen.App

/// The switch that opens this program at login.
Card {
    id: root

    required property LoginItemModel items

    implicitHeight: texts.height + 36

    Badge {
        id: badge

        x: 18
        anchors.verticalCenter: parent.verticalCenter
        name: "sparkles"
        tone: Theme.welcomeTone
        size: 32
    }

    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: 14
        anchors.right: toggle.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 4

        BodyText {
            width: parent.width
            text: Strings.openAtLogin
            wrapMode: Text.WordWrap
            font.weight: Font.DemiBold
        }

        CaptionText {
            width: parent.width
            text: Strings.openAtLoginNote
            wrapMode: Text.WordWrap
            color: Theme.secondary
        }

        Note {
            width: parent.width
            visible: root.items.obstacle !== ""
            text: Strings.openAtLoginFailed.arg(root.items.obstacle)
            symbol: "exclamationmark.triangle.fill"
            ink: Theme.reviewText
        }
    }

    ToggleSwitch {
        id: toggle

        objectName: "openAtLogin"
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: Strings.openAtLogin
        checkable: !root.items.busy
        checked: root.items.registered
        onToggled: root.items.toggleRegistered()
    }
}

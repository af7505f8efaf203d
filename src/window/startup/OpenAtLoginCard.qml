import QtQuick
import Orlen.App

/// The switch that opens this program at login.
Card {
    id: root

    required property LoginItemModel items

    implicitHeight: texts.height + 2 * Theme.cardMargin

    Badge {
        id: badge

        anchors.left: parent.left
        anchors.leftMargin: Theme.cardMargin
        anchors.verticalCenter: parent.verticalCenter
        name: "sparkles"
        tone: Theme.welcomeTone
        size: 32
    }

    Column {
        id: texts

        anchors.left: badge.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: toggle.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spaceXs

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
            text: Strings.openAtLoginFailed(root.items.obstacle)
            symbol: "exclamationmark.triangle.fill"
            ink: Theme.reviewText
        }
    }

    ToggleSwitch {
        id: toggle

        objectName: "openAtLogin"
        anchors.right: parent.right
        anchors.rightMargin: Theme.cardMargin
        anchors.verticalCenter: parent.verticalCenter
        text: Strings.openAtLogin
        checkable: !root.items.busy
        checked: root.items.registered
        onToggled: root.items.toggleRegistered()
    }
}

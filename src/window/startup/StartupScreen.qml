import QtQuick
import Orlen.App

/// Startup Items: this program's own switch, everything else that starts at login, and the login items.
Item {
    id: root

    required property Notices notices

    StartupListModel {
        id: items

        onFailed: message => root.notices.say(message)
    }

    LoginItemModel {
        id: loginItems

        onSettingsFailed: root.notices.say(Strings.settingsFailed)
    }

    Component.onCompleted: root.reload()
    onEnabledChanged: {
        if (root.enabled)
            root.reload();
    }

    function reload() {
        items.load();
        loginItems.load();
    }

    Shortcut {
        enabled: root.enabled
        sequence: "F5"
        onActivated: root.reload()
    }

    ScreenPage {
        id: page

        anchors.fill: parent

        Item {
            width: parent.width
            height: header.height

            PageHeader {
                id: header

                width: parent.width - reload.width - 16
                title: Strings.startup
                subtitle: Strings.startupLead
            }

            IconButton {
                id: reload

                objectName: "reloadStartup"
                anchors.right: parent.right
                framed: true
                symbol: "arrow.clockwise"
                text: Strings.reload
                onClicked: root.reload()
            }
        }

        OpenAtLoginCard {
            width: parent.width
            items: loginItems
        }

        StartupList {
            width: parent.width
            pageHeight: page.height
            onReached: row => page.show(row)
            items: items
        }

        LoginItemsCard {
            width: parent.width
            items: loginItems
        }
    }
}

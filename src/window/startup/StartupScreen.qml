import QtQuick
import Orlen.App

/// Startup Items: this program's own switch, everything else that starts at login, and the desktop's settings.
Item {
    id: root

    required property MainView view

    StartupListModel {
        id: items

        onFailed: message => root.view.notices.say(message)
    }

    LoginItemModel {
        id: loginItems

        onSettingsFailed: root.view.notices.say(Strings.settingsFailed)
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
        title: Screens.title(Screens.Startup)
        subtitle: Strings.startupLead
        tools: IconButton {
            objectName: "reloadStartup"
            framed: true
            symbol: "arrow.clockwise"
            text: Strings.reload
            onClicked: root.reload()
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

        AppButton {
            anchors.left: parent.left
            visible: loginItems.hasSettings
            text: Strings.openStartupSettings
            onClicked: loginItems.openSettings()
        }
    }
}

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

    StartupOrderModel {
        id: ordered

        list: items
        filter: tools.text
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

    Shortcut {
        enabled: root.enabled && tools.visible
        sequences: [StandardKey.Find]
        onActivated: tools.focusField()
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

        ListTools {
            id: tools

            width: parent.width
            visible: items.count > 0
            fieldName: "startupFilter"
            // In the order of StartupOrderModel's orders.
            orders: [Strings.byKind, Strings.byName]
            current: ordered.order
            reversed: ordered.reversed
            onSortRequested: order => ordered.sortBy(order)
        }

        StartupList {
            width: parent.width
            pageHeight: page.height
            onReached: row => page.show(row)
            items: items
            ordered: ordered
            onFilterCleared: tools.clear()
        }

        AppButton {
            anchors.left: parent.left
            visible: loginItems.hasSettings
            text: Strings.openStartupSettings
            onClicked: loginItems.openSettings()
        }
    }
}

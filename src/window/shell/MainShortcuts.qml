import QtQuick
import Orlen.App

/// The keys that work everywhere in the main window.
Item {
    id: root

    required property Navigation navigation
    /// F5 belongs to the screens whose contents it loads anew, wherever the keyboard is.
    readonly property bool hasReload: root.navigation.screen === Navigation.DiskMap
                                      || root.navigation.screen === Navigation.Apps
                                      || root.navigation.screen === Navigation.Startup
    signal helpRequested

    Repeater {
        model: ScreenListModel {}

        Item {
            id: entry

            required property int screen

            Shortcut {
                enabled: root.enabled
                sequence: "Ctrl+" + (entry.screen + 1)
                onActivated: root.navigation.screen = entry.screen
            }
        }
    }

    Shortcut {
        enabled: root.enabled
        sequences: root.hasReload ? ["Ctrl+R"] : ["Ctrl+R", "F5"]
        onActivated: {
            root.navigation.screen = Navigation.Home;
            AppModel.results.startScan();
        }
    }

    Shortcut {
        sequences: ["Ctrl+?", "F1"]
        onActivated: root.helpRequested()
    }

    Shortcut {
        sequences: [StandardKey.Quit, "Ctrl+W"]
        onActivated: Qt.quit()
    }
}

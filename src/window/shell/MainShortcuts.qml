import QtQuick
import Orlen.App

/// Keyboard shortcuts that work everywhere in the main window.
Item {
    id: root

    required property Navigation navigation
    signal helpRequested

    Repeater {
        model: Screens

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
        sequences: Screens.hasReload(root.navigation.screen) ? ["Ctrl+R"] : ["Ctrl+R", "F5"]
        onActivated: {
            root.navigation.screen = Screens.Home;
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

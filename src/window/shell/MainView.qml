import QtQuick
import Orlen.App

/// The sidebar and the selected screen. A screen is created when first shown, then kept.
Item {
    id: root

    required property Navigation navigation
    required property StorageModel storage
    required property Notices notices

    Sidebar {
        id: sidebar

        objectName: "sidebar"
        anchors.left: parent.left
        width: Theme.sidebarWidth
        height: parent.height
        currentScreen: root.navigation.screen
        freeSentence: root.storage.freeSentence
        usedFraction: root.storage.usedFraction
        onSelected: screen => root.navigation.screen = screen
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: sidebar.width

        Repeater {
            model: Screens

            Loader {
                id: loader

                required property int screen
                required property string component
                readonly property bool isShown: root.navigation.screen === loader.screen
                property bool wasShown: false

                anchors.fill: parent
                active: loader.isShown || loader.wasShown
                visible: loader.opacity > 0
                enabled: loader.isShown
                opacity: loader.isShown ? 1 : 0
                onLoaded: loader.wasShown = true
                Component.onCompleted: loader.setSource(loader.component, { view: root })

                Ease on opacity {
                    duration: Theme.screenDuration
                }
            }
        }
    }
}

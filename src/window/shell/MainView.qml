import QtQuick
import Orlen.App

/// The sidebar and the selected screen. A screen is made when it is first shown and then kept.
Item {
    id: root

    required property Navigation navigation
    required property StorageModel storage
    required property Notices notices

    Sidebar {
        id: sidebar

        width: Theme.sidebarWidth
        height: parent.height
        currentScreen: root.navigation.screen
        freeText: root.storage.freeText
        usedFraction: root.storage.usedFraction
        onSelected: screen => root.navigation.screen = screen
    }

    Item {
        id: detail

        anchors.fill: parent
        anchors.leftMargin: sidebar.width

        Repeater {
            model: ScreenListModel {}

            Loader {
                id: loader

                required property int screen
                readonly property bool isShown: root.navigation.screen === loader.screen
                property bool wasShown: false

                anchors.fill: parent
                active: loader.isShown || loader.wasShown
                visible: loader.opacity > 0
                enabled: loader.isShown
                opacity: loader.isShown ? 1 : 0
                sourceComponent: root.componentOf(loader.screen)
                onLoaded: loader.wasShown = true

                Ease on opacity {
                    duration: Theme.screenDuration
                }
            }
        }
    }

    Component {
        id: home

        HomeScreen {
            navigation: root.navigation
            storage: root.storage
        }
    }

    Component {
        id: photos

        PhotosScreen {
            navigation: root.navigation
        }
    }

    Component {
        id: ask

        AskScreen {
            navigation: root.navigation
        }
    }

    Component {
        id: predict

        PredictScreen {}
    }

    Component {
        id: diskMap

        DiskMapScreen {}
    }

    Component {
        id: apps

        AppsScreen {}
    }

    Component {
        id: startup

        StartupScreen {
            notices: root.notices
        }
    }

    Component {
        id: history

        HistoryScreen {
            notices: root.notices
        }
    }

    Component {
        id: safety

        SafetyScreen {}
    }

    function componentOf(screen: int): Component {
        return [home, photos, ask, predict, diskMap, apps, startup, history, safety][screen];
    }
}

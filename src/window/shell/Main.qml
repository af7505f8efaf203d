import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Orlen.App

/// The main window: onboarding or the main view, with the sheets and the clean-up overlay on top.
T.ApplicationWindow {
    id: root

    readonly property alias navigation: theNavigation
    readonly property alias storage: theStorage

    width: place.size.width
    height: place.size.height
    minimumWidth: place.minimum.width
    minimumHeight: place.minimum.height
    visible: true
    visibility: place.maximized ? Window.Maximized : Window.AutomaticVisibility
    title: Strings.appName
    color: Theme.window
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    WindowPlace {
        id: place

        window: root
    }

    FocusKeeper {
        window: root
    }

    Navigation {
        id: theNavigation
    }

    StorageModel {
        id: theStorage
    }

    Notices {
        id: theNotices
    }

    Loader {
        anchors.fill: parent
        active: !root.navigation.onboarded
        sourceComponent: Onboarding {
            onFinished: root.navigation.finishOnboarding()
        }
    }

    Loader {
        anchors.fill: parent
        active: root.navigation.onboarded
        sourceComponent: MainView {
            navigation: root.navigation
            storage: root.storage
            notices: theNotices
        }
    }

    MainShortcuts {
        enabled: root.navigation.onboarded
        navigation: root.navigation
        onHelpRequested: shortcuts.open()
    }

    FindingSheet {
        navigation: root.navigation
    }

    ReviewSheet {
        navigation: root.navigation
    }

    CleaningOverlay {
        navigation: root.navigation
    }

    ShortcutsSheet {
        id: shortcuts
    }

    NoticeBar {
        notices: theNotices
        besideScreen: root.navigation.onboarded && root.navigation.sheet === Navigation.NoSheet ? Theme.sidebarWidth : 0
        aboveFooter: root.navigation.sheet !== Navigation.NoSheet
    }
}

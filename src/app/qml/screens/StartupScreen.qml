import QtQuick
import Orlen.App

/// Startup Items.
ScreenPage {
    id: root

    title: "StartupScreen"
    subtitle: Strings.startupLead
}

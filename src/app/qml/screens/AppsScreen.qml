import QtQuick
import Orlen.App

/// Applications.
ScreenPage {
    id: root

    title: "AppsScreen"
    subtitle: Strings.appsLead
}

import QtQuick
import Orlen.App

/// History.
ScreenPage {
    id: root

    title: "HistoryScreen"
    subtitle: Strings.historyLead
}

import QtQuick
import Orlen.App

/// Smart Scan.
ScreenPage {
    id: root

    required property Navigation navigation
    required property StorageModel storage

    title: "HomeScreen"
    subtitle: Strings.homeLead
}

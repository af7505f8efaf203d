import QtQuick
import Orlen.App

/// Disk Map.
ScreenPage {
    id: root

    title: "DiskMapScreen"
    subtitle: Strings.diskMapLead
}

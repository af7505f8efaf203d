import QtQuick
import Orlen.App

/// Smart Photos.
ScreenPage {
    id: root

    required property Navigation navigation

    title: "PhotosScreen"
    subtitle: Strings.photosLead
}

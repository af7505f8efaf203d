import QtQuick
import Orlen.App

/// Ask Orlen.
ScreenPage {
    id: root

    required property Navigation navigation

    title: "AskScreen"
    subtitle: Strings.tryOneOfThese
}

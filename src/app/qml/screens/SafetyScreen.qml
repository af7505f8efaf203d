import QtQuick
import Orlen.App

/// How Orlen Works.
ScreenPage {
    id: root

    title: "SafetyScreen"
    subtitle: Strings.safetyLead
}

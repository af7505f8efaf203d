import QtQuick
import Orlen.App

/// How Orlen Works.
ScreenPage {
    id: root

    required property MainView view

    title: Screens.title(Screens.Safety)
    subtitle: Strings.safetyLead

    TextCardGrid {
        width: root.contentWidth
        most: 3
        texts: Strings.safetySections
        tones: Theme.safetyTones
        beside: true
    }

    ProtectionCard {
        width: root.contentWidth
    }

    ExclusionCard {
        width: root.contentWidth
    }

    PathTestCard {
        id: pathTest

        width: root.contentWidth
        notices: root.view.notices
        onAnswered: root.show(pathTest)
    }
}

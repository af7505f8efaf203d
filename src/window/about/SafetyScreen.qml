import QtQuick
import Orlen.App

/// How Orlen Works.
ScreenPage {
    id: root

    required property MainView view

    title: Screens.title(Screens.Safety)
    subtitle: Strings.safetyLead

    SafetyTexts {
        id: how
    }

    TextCardGrid {
        width: root.contentWidth
        most: 3
        texts: how.sections
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

import QtQuick
import Orlen.App

/// How Orlen Works.
ScreenPage {
    id: root

    title: Strings.safetyTitle
    subtitle: Strings.safetyLead

    TextCardGrid {
        width: Math.min(root.contentWidth, 1080 * Theme.textScale)
        texts: Strings.safetySections
        tones: Theme.safetyTones
        beside: true
    }
}

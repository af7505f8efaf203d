pragma Singleton
import QtQuick
import Orlen.App

/// Colours, type, spaces and motion of every screen. Follows the desktop.
QtObject {
    id: root

    readonly property Appearance appearance: Appearance {}
    readonly property bool dark: root.appearance.dark

    readonly property color window: root.dark ? "#131519" : "#f6f7f9"
    readonly property color sidebar: root.dark ? "#181b20" : "#eceef2"
    readonly property color card: root.dark ? "#1d2127" : "#ffffff"
    readonly property color inset: root.dark ? "#252a32" : "#f0f2f5"
    /// What stands out of an inset: the chosen part of a switch.
    readonly property color raised: root.dark ? "#3b434f" : "#ffffff"
    readonly property color hover: root.dark ? "#2b313a" : "#e6e9ee"
    /// No ground: what fades to the colour of hovering from plain transparent would pass through grey.
    readonly property color clear: Qt.rgba(root.hover.r, root.hover.g, root.hover.b, 0)
    readonly property color stroke: root.appearance.highContrast ? root.tertiary
                                                                 : (root.dark ? "#2c323b" : "#e2e5ea")
    readonly property color text: root.dark ? "#f2f4f7" : "#14171c"
    readonly property color secondary: root.dark ? "#aeb6c2" : "#525b69"
    readonly property color tertiary: root.dark ? "#8a93a1" : "#626b78"
    readonly property color accent: root.dark ? "#7ea6ff" : "#2c62e6"
    readonly property color accentFill: root.dark ? "#386ce6" : "#2c62e6"
    readonly property color accentFillHover: root.dark ? "#4578ee" : "#2456d2"
    readonly property color accentFillPressed: root.dark ? "#3060d2" : "#1f4cbd"
    readonly property color overAccent: "#ffffff"
    readonly property color accentSoft: root.dark ? "#243252" : "#e9f0fe"
    readonly property color scrim: root.dark ? Qt.rgba(0, 0, 0, 0.65) : Qt.rgba(16 / 255, 24 / 255, 40 / 255, 0.35)
    readonly property color track: root.dark ? "#2b313a" : "#e2e5ea"

    readonly property color safeText: root.dark ? "#4fd08a" : "#12713d"
    readonly property color reviewText: root.dark ? "#ffb757" : "#945000"
    readonly property color keepText: root.dark ? "#8fb2ff" : "#2457cc"
    readonly property color safeBase: "#22b566"
    readonly property color reviewBase: "#ff9500"
    readonly property color keepBase: "#3478f6"
    readonly property real chipOpacity: 0.14

    /// Badges of texts that belong to no category.
    readonly property color welcomeTone: "#3b7bf7"
    readonly property list<color> promiseTones: ["#3b7bf7", "#22ae90", "#f08a24"]
    readonly property list<color> safetyTones: ["#3b7bf7", "#22ae90", "#5b5fe0", "#f08a24", "#e5484d", "#1fa3a8"]

    readonly property string fontFamily: root.appearance.fontFamily
    /// Of the screens, as the sidebar's badges.
    readonly property color photosTone: "#ee4c86"
    readonly property color historyTone: "#2ea05a"

    /// Text sizes in pixels, grown with the desktop's own.
    readonly property real textScale: root.appearance.textScale
    readonly property int heroSize: Math.round(34 * root.textScale)
    readonly property int titleSize: Math.round(22 * root.textScale)
    readonly property int headlineSize: Math.round(16 * root.textScale)
    readonly property int bodySize: Math.round(14 * root.textScale)
    readonly property int smallSize: Math.round(13 * root.textScale)
    readonly property int captionSize: Math.round(12 * root.textScale)

    readonly property int pageMargin: 32
    /// What a page is wide at most; beyond it stands in the middle.
    readonly property int contentWidth: Math.round(1320 * Math.max(1, root.textScale * 0.9))
    readonly property int chipRadius: 5
    readonly property int controlRadius: 8
    readonly property int cardRadius: 12
    readonly property int sheetRadius: 16
    readonly property int controlHeight: Math.round(36 * Math.max(1, root.textScale * 0.9))
    readonly property int mainControlHeight: Math.round(42 * Math.max(1, root.textScale * 0.9))
    readonly property int sidebarWidth: Math.round(232 * Math.max(1, root.textScale * 0.9))

    /// Milliseconds; 0 when the desktop asks for no motion.
    readonly property bool moves: !root.appearance.reducedMotion
    readonly property int hoverDuration: root.moves ? 120 : 0
    readonly property int screenDuration: root.moves ? 160 : 0
    readonly property int sheetInDuration: root.moves ? 140 : 0
    readonly property int sheetOutDuration: root.moves ? 120 : 0

    /// Between the edge of a screen of that width and its content.
    function sideMargin(width: real): real {
        return Math.max(root.pageMargin, Math.round((width - root.contentWidth) / 2));
    }

    /// Colours of a rating, by its raw value.
    function ratingText(rating: string): color {
        return rating === "safe" ? root.safeText : rating === "keep" ? root.keepText : root.reviewText;
    }

    function ratingBase(rating: string): color {
        return rating === "safe" ? root.safeBase : rating === "keep" ? root.keepBase : root.reviewBase;
    }

    /// A colour as the image providers take it.
    function hex(colour: color): string {
        return colour.toString().slice(-6);
    }
}

pragma Singleton
import QtQuick
import Orlen.App 1.0

/// Colours, type, spacing and motion of every screen. Follows the desktop.
QtObject {
    id: root

    readonly property Appearance appearance: Appearance {}
    /// Whether everything stands the other way round, as the reader's language is written.
    readonly property bool mirrored: Words.isRightToLeft
    readonly property bool dark: root.appearance.dark

    readonly property color window: root.dark ? "#131519" : "#f6f7f9"
    readonly property color sidebar: root.dark ? "#181b20" : "#eceef2"
    readonly property color card: root.dark ? "#1d2127" : "#ffffff"
    readonly property color inset: root.dark ? "#252a32" : "#f0f2f5"
    /// Raised above an inset, such as the chosen part of a switch.
    readonly property color raised: root.dark ? "#3b434f" : "#ffffff"
    readonly property color hover: root.dark ? "#2b313a" : "#e6e9ee"
    /// Transparent form of the hover colour: fading from plain transparent would pass through grey.
    readonly property color clear: root.tint(root.hover, 0)
    readonly property color stroke: root.appearance.highContrast ? root.tertiary
                                                                 : (root.dark ? "#2c323b" : "#e2e5ea")
    readonly property color text: root.dark ? "#f2f4f7" : "#14171c"
    readonly property color secondary: root.appearance.highContrast ? root.text : (root.dark ? "#aeb6c2" : "#525b69")
    readonly property color tertiary: root.appearance.highContrast ? (root.dark ? "#d4d9e0" : "#333a45")
                                                                   : (root.dark ? "#8a93a1" : "#626b78")
    readonly property color accent: root.accentOr(root.appearance.accentText, "#7ea6ff", "#2c62e6")
    readonly property color accentFill: root.accentOr(root.appearance.accentFill, "#386ce6", "#2c62e6")
    readonly property color accentFillHover: root.accentOr(root.appearance.accentHover, "#4578ee", "#2456d2")
    readonly property color accentFillPressed: root.accentOr(root.appearance.accentPressed, "#3060d2", "#1f4cbd")
    readonly property color overAccent: "#ffffff"
    readonly property color accentSoft: root.accentOr(root.appearance.accentSoft, "#243252", "#e9f0fe")
    readonly property color scrim: root.dark ? "#a6000000" : "#59101828"
    readonly property color track: root.dark ? "#2b313a" : "#e2e5ea"

    readonly property color safeText: root.dark ? "#4fd08a" : "#12713d"
    readonly property color reviewText: root.dark ? "#ffb757" : "#945000"
    readonly property color keepText: root.dark ? "#8fb2ff" : "#2457cc"
    readonly property color safeBase: "#22b566"
    readonly property color reviewBase: "#ff9500"
    readonly property color keepBase: "#3478f6"
    readonly property real chipOpacity: 0.14

    /// The knob of a switch that is off.
    readonly property color knob: root.dark ? root.secondary : "#ffffff"

    /// For badges of texts without a category.
    readonly property color welcomeTone: "#3b7bf7"
    /// Each screen's colour, as in the sidebar.
    readonly property color photosTone: "#ee4c86"
    readonly property color askTone: "#9257e8"
    readonly property color diskMapTone: "#1fa3a8"
    readonly property color appsTone: "#5b5fe0"
    readonly property color startupTone: "#e5484d"
    readonly property color historyTone: "#2ea05a"

    /// The disk map: folders and files in six hues, the rest, and the text on them.
    readonly property list<color> mapFolders: root.dark
            ? ["#2e5399", "#5f3e98", "#2b694c", "#90475b", "#875826", "#1d6567"]
            : ["#a3c0f5", "#cfbaf3", "#9fdbbf", "#f4b9c9", "#f6cb92", "#99d7db"]
    readonly property list<color> mapFiles: root.dark
            ? ["#293e65", "#463267", "#264a39", "#623743", "#5b4125", "#1e4748"]
            : ["#cddcf8", "#e0d4f5", "#c9e8da", "#f6d3dd", "#f9dfbd", "#c4e5e7"]
    readonly property color mapRest: root.dark ? "#3a404a" : "#d5dae1"
    /// The shades of a legend but its last, each lighter or darker than the next. Texts are read on all.
    readonly property list<color> mapAges: root.dark ? ["#1d2b31", "#2a463c", "#56501f", "#7d541a", "#a35025"]
                                                     : ["#f1f6e6", "#e1e6a6", "#edcb6c", "#efae5e", "#ee9474"]
    readonly property list<color> mapGrowths: root.dark ? ["#1f5490", "#2b3a36", "#54450f", "#7d4b17", "#b04038"]
                                                        : ["#8fc0f2", "#e9efe5", "#f5da8c", "#f4b263", "#f19a8f"]
    readonly property list<color> mapRatings: root.dark ? ["#1c6b45", "#7d5310", "#2a55a0", "#59416f"]
                                                        : ["#93dcb4", "#f7cb7e", "#9fc2fb", "#c9b6da"]
    readonly property color mapInk: root.dark ? "#ffffff" : "#14171c"
    readonly property color mapQuietInk: root.appearance.highContrast ? root.mapInk
                                         : root.dark ? root.tint(root.mapInk, 0.85) : "#363f4d"
    /// Edge of a tile, in pixels, where its colour alone is not enough to tell it from the next.
    readonly property int mapEdge: root.appearance.highContrast ? 1 : 0

    /// On top of photos: text and the shade behind it.
    readonly property color overPhoto: "#ffffff"
    readonly property color photoShade: "#99000000"
    readonly property color photoEdge: root.dark ? "transparent" : "#14000000"
    readonly property color keptFill: "#12713d"

    readonly property list<color> promiseTones: ["#3b7bf7", "#22ae90", "#f08a24"]
    readonly property list<color> safetyTones: ["#3b7bf7", "#22ae90", "#5b5fe0", "#f08a24", "#e5484d", "#1fa3a8"]

    readonly property string fontFamily: root.appearance.fontFamily
    /// Text sizes in pixels, scaled with the desktop's.
    readonly property real textScale: root.appearance.textScale
    readonly property int heroSize: root.grown(34)
    readonly property int titleSize: root.grown(22)
    readonly property int headlineSize: root.grown(16)
    readonly property int bodySize: root.grown(14)
    readonly property int smallSize: root.grown(13)
    readonly property int captionSize: root.grown(12)

    /// Spacing between items, and margins of cards and pages.
    readonly property int spaceXs: 4
    readonly property int spaceS: 8
    readonly property int spaceM: 12
    readonly property int spaceL: 16
    readonly property int spaceXl: 24
    readonly property int cardMargin: 20
    readonly property int pageMargin: 32
    /// Maximum width of a page, which is centred beyond that.
    readonly property int contentWidth: root.widened(1320)
    readonly property int chipRadius: 5
    readonly property int controlRadius: 8
    readonly property int cardRadius: 12
    readonly property int sheetRadius: 16
    readonly property int controlHeight: root.widened(36)
    readonly property int mainControlHeight: root.widened(42)
    readonly property int sidebarWidth: root.widened(232)

    /// In milliseconds; 0 if the desktop asks for no motion.
    readonly property bool moves: !root.appearance.reducedMotion
    readonly property int hoverDuration: root.moves ? 120 : 0
    readonly property int screenDuration: root.moves ? 160 : 0
    readonly property int sheetInDuration: root.moves ? 140 : 0
    readonly property int sheetOutDuration: root.moves ? 120 : 0

    /// The desktop's accent, or our own.
    function accentOr(desktop: color, inDark: color, inLight: color): color {
        return root.appearance.hasAccent ? desktop : root.dark ? inDark : inLight;
    }

    /// A length that scales with the text.
    function grown(pixels: real): int {
        return Math.round(pixels * root.textScale);
    }

    /// A length that scales less than the text, where there is room to spare.
    function widened(pixels: real): int {
        return Math.round(pixels * Math.max(1, root.textScale * 0.9));
    }

    function tint(colour: color, opacity: real): color {
        return Qt.rgba(colour.r, colour.g, colour.b, opacity);
    }

    /// Whether a window or screen of this height has room for little more than its list, so that texts give way.
    function isLow(height: real): bool {
        return height > 0 && height < 480 * root.textScale;
    }

    /// Side margin of a screen of this width.
    function sideMargin(width: real): real {
        return Math.max(root.pageMargin, Math.round((width - root.contentWidth) / 2));
    }

    /// A rating's colours, by its raw value.
    function ratingText(rating: string): color {
        return rating === "safe" ? root.safeText : rating === "keep" ? root.keepText : root.reviewText;
    }

    function ratingBase(rating: string): color {
        return rating === "safe" ? root.safeBase : rating === "keep" ? root.keepBase : root.reviewBase;
    }

    /// The colour of a shade of the disk map's legend. Folders and files have several hues.
    function mapShade(meaning: int, shade: int, hue: int): color {
        switch (meaning) {
        case TileColours.Age:
            return root.mapAges[shade] ?? root.mapRest;
        case TileColours.Growth:
            return root.mapGrowths[shade] ?? root.mapRest;
        case TileColours.Rating:
            return root.mapRatings[shade] ?? root.mapRest;
        default:
            return shade === DiskMapView.Rest ? root.mapRest : shade === DiskMapView.Folder ? root.mapFolders[hue]
                                                                                            : root.mapFiles[hue];
        }
    }

    /// A colour in the form image providers expect.
    function hex(colour: color): string {
        return colour.toString().slice(-6);
    }
}

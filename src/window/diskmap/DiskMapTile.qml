import QtQuick
import Orlen.App

/// One item of the disk map. The map itself handles the pointer.
Rectangle {
    id: root

    required property string name
    required property string size
    required property int kind
    required property int hue
    required property rect area
    required property string spoken
    required property int index
    /// Whether a change of place is shown as a movement.
    property bool moving: false
    property bool isHovered: false
    property bool isCurrent: false
    signal pressed

    readonly property color ink: Theme.dark ? "#ffffff" : "#14171c"
    readonly property color quietInk: Theme.dark ? Qt.rgba(1, 1, 1, 0.85) : "#3c4554"
    readonly property real inset: Math.min(8, Math.round(root.height / 6))
    readonly property bool isLabelled: root.area.width >= 54 * Theme.textScale && root.area.height >= 24 * Theme.textScale

    x: root.area.x
    y: root.area.y
    width: root.area.width
    height: root.area.height
    radius: Math.min(6, root.area.width / 4, root.area.height / 4)
    color: root.colourOf(root.hue, root.kind)
    border.width: root.isHovered || root.isCurrent ? 2 : 0
    border.color: root.isCurrent ? (Theme.dark ? "#ffffff" : Theme.accent)
                                 : Theme.dark ? "#ffffff" : Qt.darker(root.color, 1.7)
    Accessible.role: root.kind === DiskMapView.Folder ? Accessible.Button : Accessible.StaticText
    Accessible.name: root.spoken
    Accessible.onPressAction: root.pressed()

    Spring on x {
        enabled: root.moving
    }
    Spring on y {
        enabled: root.moving
    }
    Spring on width {
        enabled: root.moving
    }
    Spring on height {
        enabled: root.moving
    }

    SmallText {
        id: title

        x: 8
        y: root.inset
        width: root.width - 16
        visible: root.isLabelled
        text: root.name
        color: root.ink
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }

    CaptionText {
        x: 8
        y: title.y + title.height + 1
        visible: root.isLabelled && x + width <= root.width - 6 && y + height <= root.height - 3
        text: root.size
        color: root.quietInk
        Accessible.ignored: true
    }

    function colourOf(hue: int, kind: int): color {
        if (kind === DiskMapView.Rest)
            return Theme.dark ? "#3a404a" : "#d5dae1";
        const folders = Theme.dark ? ["#2e5399", "#5f3e98", "#2b694c", "#90475b", "#875826", "#1d6567"]
                                   : ["#a3c0f5", "#cfbaf3", "#9fdbbf", "#f4b9c9", "#f6cb92", "#99d7db"];
        const files = Theme.dark ? ["#293e65", "#463267", "#264a39", "#623743", "#5b4125", "#1e4748"]
                                 : ["#cddcf8", "#e0d4f5", "#c9e8da", "#f6d3dd", "#f9dfbd", "#c4e5e7"];
        return (kind === DiskMapView.Folder ? folders : files)[hue];
    }
}

import QtQuick
import Orlen.App

/// One item of the disk map. The map handles the pointer.
Rectangle {
    id: root

    required property string name
    required property string size
    required property int kind
    required property int hue
    required property int shade
    required property string symbol
    required property string fact
    required property rect area
    required property string spoken
    required property bool unread
    required property bool locked
    required property int index
    /// What the shades are of.
    property int meaning: TileColours.Kind
    /// Whether changes of position are animated.
    property bool moving: false
    property bool isHovered: false
    property bool isCurrent: false
    signal pressed

    readonly property real inset: Math.min(8, Math.round(root.height / 6))
    readonly property bool isLabelled: root.area.width >= Theme.grown(54) && root.area.height >= Theme.grown(24)

    x: root.area.x
    y: root.area.y
    width: root.area.width
    height: root.area.height
    radius: Math.min(6, root.area.width / 4, root.area.height / 4)
    color: Theme.mapShade(root.meaning, root.shade, root.hue)
    border.width: root.isHovered || root.isCurrent ? 2 + Theme.mapEdge : Theme.mapEdge
    border.color: Theme.dark || border.width < 2 ? Theme.mapInk
                                                 : root.isCurrent ? Theme.accent : Qt.darker(root.color, 1.7)
    Accessible.role: root.kind === DiskMapView.Folder ? Accessible.Button : Accessible.StaticText
    Accessible.name: Strings.spoken([root.spoken, root.fact])
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

    Symbol {
        id: sign

        anchors.right: parent.right
        anchors.margins: Theme.spaceXs
        y: root.isLabelled ? root.inset + 2 : Math.round((root.height - height) / 2)
        visible: name !== "" && root.width >= size + 4 && root.height >= size + 4
        name: root.symbol !== "" ? root.symbol : root.locked ? "lock.fill" : ""
        colour: Theme.mapQuietInk
        size: 12
    }

    SmallText {
        id: title

        x: 8
        y: root.inset
        width: root.width - 16 - (sign.visible ? sign.width : 0)
        visible: root.isLabelled
        text: root.name
        color: Theme.mapInk
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }

    CaptionText {
        x: 8
        y: title.y + title.height + 1
        visible: root.isLabelled && !root.unread && x + width <= root.width - 6 && y + height <= root.height - 3
        text: root.size
        color: Theme.mapQuietInk
        Accessible.ignored: true
    }
}

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// The tiles of the disk map, with their pointer, touch and keyboard input.
T.Control {
    id: root

    required property DiskMapView map

    /// The map is 12 points smaller than its view each way, and its last tiles end in a gap of 2.
    readonly property int mapWidth: Math.max(0, root.width) + 14
    readonly property int mapHeight: Math.max(0, root.height) + 14
    /// Whether the map is used with the keyboard.
    readonly property bool showsRing: InputMode.keyed && root.activeFocus
    /// A right click at this place of the tiles asks for the menu of a row.
    signal menuRequested(row: int, x: real, y: real)

    /// The tile of a row; null if there is none.
    function tileAt(row: int): DiskMapTile {
        return repeater.itemAt(row) as DiskMapTile;
    }

    objectName: "diskMapSurface"
    clip: true
    focus: true
    // The places of the tiles are the map's, and so are the keys that go from one to the next.
    LayoutMirroring.enabled: false
    LayoutMirroring.childrenInherit: true
    focusPolicy: Qt.TabFocus
    Accessible.role: Accessible.List
    Accessible.name: Strings.contentsOf(root.map.folderName)

    Keys.onPressed: event => {
        event.accepted = true;
        switch (event.key) {
        case Qt.Key_Left:
            root.map.step(DiskMapView.Left);
            break;
        case Qt.Key_Right:
            root.map.step(DiskMapView.Right);
            break;
        case Qt.Key_Up:
            root.map.step(DiskMapView.Up);
            break;
        case Qt.Key_Down:
            root.map.step(DiskMapView.Down);
            break;
        default:
            event.accepted = false;
        }
    }

    contentItem: Item {
        id: tiles

        opacity: 0
        transform: Scale {
            id: zoom

            origin.x: root.map.zoomOrigin.x
            origin.y: root.map.zoomOrigin.y
            yScale: xScale
        }

        Repeater {
            id: repeater

            model: root.map

            DiskMapTile {
                id: tile

                objectName: "tile-" + tile.index
                meaning: root.map.colours.meaning
                moving: root.map.rearranging && Theme.moves
                isHovered: root.map.hoverRow === tile.index
                isCurrent: root.showsRing && root.map.currentRow === tile.index
                onPressed: root.map.open(tile.index)
            }
        }
    }

    FocusRing {
        shown: root.showsRing && root.map.currentRow < 0
        gap: -2
    }

    // The left button acts on press, unlike in lists and buttons.
    MouseArea {
        id: pointer

        anchors.fill: parent
        hoverEnabled: true
        acceptedButtons: Qt.LeftButton | Qt.RightButton | Qt.BackButton
        onPressed: mouse => {
            root.forceActiveFocus(Qt.MouseFocusReason);
            if (mouse.button === Qt.LeftButton)
                root.map.gestures.click(Qt.point(mouse.x, mouse.y));
            else if (mouse.button === Qt.RightButton)
                root.menuRequested(root.map.rowAt(Qt.point(mouse.x, mouse.y)), mouse.x, mouse.y);
            else
                root.map.up();
        }
        // Where it comes from a menu, no move follows.
        onEntered: root.map.gestures.movePointer(Qt.point(pointer.mouseX, pointer.mouseY))
        onPositionChanged: mouse => root.map.gestures.movePointer(Qt.point(mouse.x, mouse.y))
        onExited: root.map.gestures.removePointer()
        onWheel: wheel => {
            wheel.accepted = wheel.modifiers & Qt.ControlModifier;
            if (wheel.accepted)
                root.map.gestures.turnWheel(wheel.angleDelta.y);
        }
    }

    PinchHandler {
        target: null
        onActiveScaleChanged: root.map.gestures.pinch(activeScale)
    }

    Connections {
        target: root.map

        function onLoadingChanged() {
            if (root.map.loading) {
                arrival.stop();
                farewell.start();
            }
        }

        function onArrived(levels: int) {
            farewell.stop();
            zoom.xScale = levels > 0 ? 0.9 : levels < 0 ? 1.08 : 1;
            arrival.restart();
        }
    }

    NumberAnimation {
        id: farewell

        target: tiles
        property: "opacity"
        to: 0
        duration: Theme.sheetOutDuration
    }

    ParallelAnimation {
        id: arrival

        NumberAnimation {
            target: tiles
            property: "opacity"
            to: 1
            duration: Theme.screenDuration
        }
        SpringMotion {
            target: zoom
            property: "xScale"
            to: 1
            response: 0.55
            damping: 0.85
        }
    }
}

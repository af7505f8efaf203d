import QtQuick
import QtQuick.Window
import Orlen.App

/// One of several linked photos: the part of it that is shown, and what is told of it.
Item {
    id: root

    required property LinkedZoom zoom
    /// The key that keeps it.
    required property int number
    required property string photo
    required property string name
    required property string source
    required property size pixels
    required property bool kept
    required property bool selected
    required property list<string> facts
    required property int differing
    property bool current: false

    readonly property real actualZoom: pane.actualZoom

    signal pressed
    signal keepRequested
    signal toggled

    Accessible.role: Accessible.Grouping
    Accessible.name: Strings.spoken([root.name, root.kept ? Strings.kept : ""])

    ComparePane {
        id: pane

        zoom: root.zoom
        photo: root.photo
        pixels: root.pixels
        size: Qt.size(view.width, view.height)
        ratio: root.Screen.devicePixelRatio
    }

    Rectangle {
        id: view

        objectName: "comparePicture"
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: told.top
        anchors.bottomMargin: Theme.spaceS
        color: Theme.inset
        clip: true

        Image {
            id: whole

            readonly property bool isDrawn: whole.status === Image.Ready && whole.implicitWidth > 0
            // Stands in the middle until its pixels are known.
            readonly property bool isPlaced: pane.place.width > 0

            x: whole.isPlaced ? pane.place.x : 0
            y: whole.isPlaced ? pane.place.y : 0
            width: whole.isPlaced ? pane.place.width : view.width
            height: whole.isPlaced ? pane.place.height : view.height
            fillMode: whole.isPlaced ? Image.Stretch : Image.PreserveAspectFit
            source: root.source
            sourceSize.width: Math.max(1, view.width)
            sourceSize.height: Math.max(1, view.height)
            asynchronous: true
            cache: false
            autoTransform: false
            Accessible.ignored: true
        }

        Image {
            objectName: "compareDetail"
            x: pane.detailPlace.x
            y: pane.detailPlace.y
            width: pane.detailPlace.width
            height: pane.detailPlace.height
            visible: status === Image.Ready && implicitWidth > 0
            source: pane.detail
            sourceSize.width: pane.detailSize.width
            sourceSize.height: pane.detailSize.height
            // Pixels are to be seen as they are.
            smooth: root.zoom.zoom <= pane.actualZoom
            asynchronous: true
            cache: false
            autoTransform: false
            Accessible.ignored: true
        }

        Symbol {
            anchors.centerIn: parent
            visible: !whole.isDrawn
            name: "doc.image"
            colour: Theme.tertiary
            size: 28
            grows: false
        }

        Pill {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: Theme.spaceS
            visible: pane.percent !== ""
            text: pane.percent
            ink: Theme.overPhoto
            color: Theme.photoShade
        }

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.width: root.current ? 2 : 0
            border.color: Theme.accent
        }

        MouseArea {
            id: area

            property point last

            anchors.fill: parent
            cursorShape: root.zoom.fitted ? Qt.ArrowCursor
                         : area.pressed ? Qt.ClosedHandCursor : Qt.OpenHandCursor
            onPressed: mouse => {
                area.last = Qt.point(mouse.x, mouse.y);
                root.pressed();
            }
            onPositionChanged: mouse => {
                const seen = pane.place;
                if (seen.width > 0)
                    root.zoom.panBy((area.last.x - mouse.x) / seen.width, (area.last.y - mouse.y) / seen.height);
                area.last = Qt.point(mouse.x, mouse.y);
            }
            onDoubleClicked: mouse => {
                if (root.zoom.fitted)
                    root.zoom.zoomTo(pane.actualZoom, pane.partAt(Qt.point(mouse.x, mouse.y)));
                else
                    root.zoom.fit();
            }
            onWheel: wheel => root.zoom.zoomBy(Math.pow(2, wheel.angleDelta.y / 360),
                                               pane.partAt(Qt.point(wheel.x, wheel.y)))
        }

        PinchHandler {
            id: pinch

            property real before: 1

            target: null
            onActiveChanged: pinch.before = root.zoom.zoom
            onActiveScaleChanged: root.zoom.zoomTo(pinch.before * pinch.activeScale,
                                                   pane.partAt(pinch.centroid.position))
        }
    }

    Column {
        id: told

        anchors.bottom: parent.bottom
        x: Theme.spaceXs
        width: parent.width - 2 * x
        spacing: 2

        SmallText {
            width: parent.width
            text: root.name
            elide: Text.ElideMiddle
            color: Theme.text
            font.weight: Font.DemiBold
        }

        Repeater {
            model: root.facts

            CompareFact {
                required property string modelData
                required property int index

                width: told.width
                fact: modelData
                differs: (root.differing >> index) % 2 === 1
            }
        }

        // Keeps its place while the facts are read.
        Repeater {
            model: root.facts.length === 0 ? 6 : 0

            CaptionText {
                text: "\u2026"
                Accessible.ignored: true
            }
        }

        Item {
            width: parent.width
            height: Math.max(keep.height, mark.height) + Theme.spaceXs

            Pill {
                anchors.left: parent.left
                anchors.verticalCenter: keep.verticalCenter
                visible: root.kept
                symbol: "checkmark"
                text: Strings.kept
                ink: Theme.overPhoto
                color: Theme.keptFill
            }

            CheckMark {
                id: mark

                objectName: "compareMark"
                anchors.left: parent.left
                anchors.verticalCenter: keep.verticalCenter
                visible: !root.kept
                focusPolicy: Qt.TabFocus
                checkState: root.selected ? Qt.Checked : Qt.Unchecked
                nextCheckState: () => checkState
                Accessible.name: Strings.trashNamed(root.name)
                onClicked: root.toggled()

                ToolTipBubble {
                    shown: mark.hovered
                    text: mark.Accessible.name
                }
            }

            AppButton {
                id: keep

                objectName: "keepThis"
                anchors.right: parent.right
                anchors.bottom: parent.bottom
                visible: !root.kept
                focusPolicy: Qt.TabFocus
                text: Strings.keepNumber(root.number)
                Accessible.name: Strings.spoken([Strings.keep, root.name])
                onClicked: root.keepRequested()
            }
        }
    }
}

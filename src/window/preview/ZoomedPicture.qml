import QtQuick
import QtQuick.Window
import Orlen.App

/// A picture that the wheel, a pinch and a double click zoom, and that is dragged when only a part of it is shown.
Rectangle {
    id: root

    required property LinkedZoom zoom
    /// A `PathCode`.
    required property string photo
    /// Of all of it, in its place while no more is needed.
    required property string source
    /// Of the whole picture; empty while unknown.
    required property size pixels

    /// Pixels to read for each of the place's.
    property int detail: 1

    readonly property real actualZoom: pane.actualZoom
    signal pressed

    color: Theme.inset
    clip: true

    PicturePane {
        id: pane

        zoom: root.zoom
        photo: root.photo
        pixels: root.pixels
        size: Qt.size(root.width, root.height)
        ratio: root.Screen.devicePixelRatio
    }

    Image {
        id: whole

        objectName: root.objectName + "Picture"
        readonly property bool isDrawn: whole.status === Image.Ready && whole.implicitWidth > 0
        // Stands in the middle until its pixels are known.
        readonly property bool isPlaced: pane.place.width > 0

        x: whole.isPlaced ? pane.place.x : 0
        y: whole.isPlaced ? pane.place.y : 0
        width: whole.isPlaced ? pane.place.width : root.width
        height: whole.isPlaced ? pane.place.height : root.height
        fillMode: whole.isPlaced ? Image.Stretch : Image.PreserveAspectFit
        source: root.source
        sourceSize.width: Math.max(1, root.width * root.detail)
        sourceSize.height: Math.max(1, root.height * root.detail)
        mipmap: root.detail > 1
        asynchronous: true
        cache: false
        autoTransform: false
        Accessible.ignored: true
    }

    Image {
        objectName: root.objectName + "Detail"
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

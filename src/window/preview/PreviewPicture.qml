import QtQuick
import Orlen.App

/// The picture of a preview, with the buttons that zoom it.
Item {
    id: root

    required property PreviewModel preview

    /// Half as large again (1), or the other way (-1).
    function zoom(by: int) {
        view.zoomMiddleBy(by > 0 ? 1.5 : 1 / 1.5);
    }
    function fit() {
        view.fit();
    }
    /// A pixel of the picture for one of the screen.
    function showPixels() {
        view.zoomMiddleTo(picture.actualZoom);
    }

    LinkedZoom {
        id: view

        most: Math.max(8, 4 * picture.actualZoom)
    }

    ZoomedPicture {
        id: picture

        objectName: "preview"
        anchors.fill: parent
        anchors.margins: Theme.spaceL
        zoom: view
        photo: root.preview.path
        source: root.preview.picture
        pixels: root.preview.pixels
        // A page has no pixels of its own, so that it is drawn for some zoom.
        detail: root.preview.kind === PreviewModel.Page ? 2 : 1
        Accessible.role: Accessible.Graphic
        Accessible.name: root.preview.name
    }

    Row {
        anchors.left: picture.left
        anchors.bottom: picture.bottom
        anchors.margins: Theme.spaceS
        spacing: Theme.spaceXs

        component ZoomButton: IconButton {
            framed: true
            fill: hovered || down ? Theme.hover : Theme.card
            focusPolicy: Qt.TabFocus
        }

        ZoomButton {
            objectName: "previewZoomOut"
            enabled: !view.fitted
            symbol: "zoom.out"
            text: Strings.zoomOut
            onClicked: root.zoom(-1)
        }

        ZoomButton {
            objectName: "previewZoomIn"
            enabled: view.zoom < view.most
            symbol: "zoom.in"
            text: Strings.zoomIn
            onClicked: root.zoom(1)
        }
    }

    Connections {
        target: root.preview

        function onPathChanged() {
            view.fit();
        }
    }
}

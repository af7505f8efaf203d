import QtQuick
import Orlen.App

/// What can be done with the photos that are compared. A click leaves the keyboard with the photos.
Item {
    id: root

    required property CompareModel compared
    required property LinkedZoom zoom
    required property bool flipping
    required property real actualZoom

    signal flipRequested
    signal stepRequested(by: int)

    implicitHeight: flow.height + Theme.spaceM + Theme.spaceL

    Divider {
        width: parent.width
    }

    Flow {
        id: flow

        x: Theme.spaceL
        y: Theme.spaceM
        width: parent.width - 2 * x
        spacing: Theme.spaceS

        IconButton {
            objectName: "previousSet"
            framed: true
            focusPolicy: Qt.TabFocus
            enabled: root.compared.hasPrevious
            symbol: "chevron.left"
            text: Strings.previousSet
            onClicked: root.stepRequested(-1)
        }

        IconButton {
            objectName: "nextSet"
            framed: true
            focusPolicy: Qt.TabFocus
            enabled: root.compared.hasNext
            symbol: "chevron.right"
            text: Strings.nextSet
            onClicked: root.stepRequested(1)
        }

        IconButton {
            framed: true
            focusPolicy: Qt.TabFocus
            enabled: !root.zoom.fitted
            symbol: "zoom.out"
            text: Strings.zoomOut
            onClicked: root.zoom.zoomMiddleBy(1 / 1.5)
        }

        IconButton {
            framed: true
            focusPolicy: Qt.TabFocus
            enabled: root.zoom.zoom < root.zoom.most
            symbol: "zoom.in"
            text: Strings.zoomIn
            onClicked: root.zoom.zoomMiddleBy(1.5)
        }

        AppButton {
            objectName: "actualSize"
            focusPolicy: Qt.TabFocus
            text: root.compared.fullSize
            onClicked: root.zoom.zoomMiddleTo(root.actualZoom)
        }

        AppButton {
            focusPolicy: Qt.TabFocus
            text: Strings.fit
            enabled: !root.zoom.fitted
            onClicked: root.zoom.fit()
        }

        AppButton {
            objectName: "flip"
            focusPolicy: Qt.TabFocus
            text: root.flipping ? Strings.sideBySide : Strings.flip
            onClicked: root.flipRequested()
        }

        AppButton {
            focusPolicy: Qt.TabFocus
            visible: root.compared.hasMore
            text: Strings.nextPhotos
            onClicked: root.compared.showMore()
        }

        AppButton {
            objectName: "keepAll"
            focusPolicy: Qt.TabFocus
            text: Strings.keepAll
            enabled: root.compared.anySelected
            onClicked: root.compared.keepAll()
        }
    }
}

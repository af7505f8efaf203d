import QtQuick
import Orlen.App

/// The way to the folder shown, and how it is shown.
Item {
    id: root

    required property DiskMapView map
    required property bool asList
    signal listRequested(wanted: bool)

    readonly property int crumbLimit: Math.max(60, Math.floor((tools.x - 16) / Math.max(1, crumbs.count)))

    implicitHeight: Theme.controlHeight

    Row {
        anchors.verticalCenter: parent.verticalCenter
        Accessible.role: Accessible.List
        Accessible.name: Strings.diskMapTitle

        Repeater {
            id: crumbs

            model: root.map.crumbs

            Crumb {
                id: crumb

                objectName: "crumb-" + crumb.step
                longest: root.crumbLimit
                onClicked: root.map.goTo(crumb.step)
            }
        }
    }

    Row {
        id: tools

        anchors.right: parent.right
        spacing: 8

        IconButton {
            objectName: "diskMapReload"
            symbol: "arrow.clockwise"
            text: Strings.measureAgain
            onClicked: root.map.load()
        }

        SegmentedSwitch {
            objectName: "diskMapForm"
            firstSymbol: "square.grid.3x3.fill"
            firstText: Strings.asMap
            secondSymbol: "list.bullet"
            secondText: Strings.asList
            current: root.asList ? 1 : 0
            onSelected: index => root.listRequested(index === 1)
        }
    }
}

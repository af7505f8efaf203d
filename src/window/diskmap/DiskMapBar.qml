import QtQuick
import QtQuick.Layouts
import Orlen.App

/// The path to the shown folder, and the switch between map and list.
Item {
    id: root

    required property DiskMapView map
    required property bool asList
    signal listRequested(wanted: bool)

    implicitHeight: Theme.controlHeight

    RowLayout {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: Math.min(implicitWidth, root.width - tools.width - 16)
        spacing: 0
        Accessible.role: Accessible.List
        Accessible.name: Screens.title(Screens.DiskMap)

        Repeater {
            model: root.map.crumbs

            Crumb {
                id: crumb

                objectName: "crumb-" + crumb.step
                Layout.fillWidth: true
                Layout.minimumWidth: Math.min(implicitWidth, 64)
                Layout.maximumWidth: implicitWidth
                onClicked: root.map.goTo(crumb.step)
            }
        }
    }

    Row {
        id: tools

        anchors.right: parent.right
        spacing: Theme.spaceS

        ChoiceField {
            objectName: "diskMapPlace"
            height: Theme.controlHeight
            width: Math.min(implicitWidth, Theme.widened(170))
            visible: root.map.places.length > 1
            label: Strings.startsAt
            model: root.map.places
            currentIndex: root.map.place
            onActivated: index => root.map.startAt(index)
        }

        IconButton {
            framed: true
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

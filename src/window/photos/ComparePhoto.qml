import QtQuick
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

    readonly property real actualZoom: view.actualZoom

    signal pressed
    signal keepRequested
    signal toggled

    Accessible.role: Accessible.Grouping
    Accessible.name: Strings.spoken([root.name, root.kept ? Strings.kept : ""])

    ZoomedPicture {
        id: view

        objectName: "compare"
        width: parent.width
        anchors.top: parent.top
        anchors.bottom: told.top
        anchors.bottomMargin: Theme.spaceS
        zoom: root.zoom
        photo: root.photo
        source: root.source
        pixels: root.pixels
        onPressed: root.pressed()

        Rectangle {
            anchors.fill: parent
            color: "transparent"
            border.width: root.current ? 2 : 0
            border.color: Theme.accent
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

import QtQuick
import Orlen.App

/// What the colours of the disk map tell: the choice, and each colour with its meaning.
Flow {
    id: root

    required property TileColours colours

    // Between lines; what stands beside each other has a margin, too.
    spacing: Theme.spaceXs
    Accessible.role: Accessible.List
    Accessible.name: Strings.coloursOfMap

    MapColourButton {
        id: choice

        objectName: "mapColours"
        colours: root.colours
    }

    CaptionText {
        objectName: "mapLegendNote"
        leftPadding: 6
        width: Math.min(implicitWidth, root.width)
        height: choice.height
        visible: text !== ""
        verticalAlignment: Text.AlignVCenter
        text: root.colours.note
        color: Theme.secondary
        elide: Text.ElideRight
    }

    Repeater {
        model: root.colours.legend

        Row {
            id: entry

            required property string modelData
            required property int index
            /// The colour of its tiles.
            readonly property color shown: Theme.mapShade(root.colours.meaning, entry.index, 0)
            readonly property string symbol: root.colours.symbols[entry.index] ?? ""

            objectName: "mapLegend-" + entry.index
            height: choice.height
            leftPadding: 6
            spacing: 6

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: Theme.grown(16)
                height: width
                radius: 4
                color: entry.shown
                border.width: 1
                border.color: Theme.stroke

                // Folders and files have several hues, which tell nothing.
                Row {
                    anchors.fill: parent
                    anchors.margins: 1
                    visible: root.colours.meaning === TileColours.Kind

                    Repeater {
                        model: 3

                        Rectangle {
                            required property int index

                            width: parent ? parent.width / 3 : 0
                            height: parent ? parent.height : 0
                            color: Theme.mapShade(TileColours.Kind, entry.index, index)
                        }
                    }
                }

                Symbol {
                    anchors.centerIn: parent
                    visible: entry.symbol !== ""
                    name: entry.symbol
                    colour: Theme.mapInk
                    size: 10
                }
            }

            CaptionText {
                anchors.verticalCenter: parent.verticalCenter
                text: entry.modelData
                color: Theme.secondary
            }
        }
    }
}

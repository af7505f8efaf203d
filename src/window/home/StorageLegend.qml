import QtQuick
import Orlen.App

/// The legend of the storage ring, in columns of equal width.
Grid {
    id: root

    required property StorageModel storage
    /// Available width, which sets the number of columns.
    required property real room

    readonly property real narrowest: 140 * Theme.textScale
    readonly property real roomForCells: root.room - (root.columns - 1) * root.columnSpacing
    readonly property int cellWidth: Math.min(Math.floor(root.roomForCells / root.columns), Theme.grown(168))

    columns: Math.max(1, Math.min(4, Math.floor((root.room + root.columnSpacing)
                                                / (root.narrowest + root.columnSpacing))))
    columnSpacing: Theme.spaceXs
    rowSpacing: Theme.spaceS
    Accessible.role: Accessible.List
    Accessible.name: Strings.usedSpace

    Repeater {
        model: root.storage

        Item {
            id: row

            required property string label
            required property color colour
            required property string size

            width: root.cellWidth
            height: name.height
            Accessible.role: Accessible.ListItem
            Accessible.name: row.label + " " + row.size

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: 8
                height: 8
                radius: 4
                color: row.colour
            }

            CaptionText {
                id: name

                x: 16
                text: row.label
                color: Theme.secondary
                Accessible.ignored: true
            }

            CaptionText {
                anchors.left: name.right
                anchors.leftMargin: Theme.spaceS
                anchors.right: parent.right
                text: row.size
                color: Theme.text
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }
        }
    }
}

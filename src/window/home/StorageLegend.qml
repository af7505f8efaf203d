import QtQuick
import Orlen.App

/// The legend of the storage ring, in columns of equal width. Tab stops once; the arrow keys move between the
/// categories.
Grid {
    id: root

    required property StorageModel storage
    /// Available width, which sets the number of columns.
    required property real room
    signal chosen(category: int)

    property int current: 0
    /// Of what a cell holds.
    property real widest: 0
    readonly property real narrowest: Math.max(140 * Theme.textScale, root.widest)
    readonly property real roomForCells: root.room - (root.columns - 1) * root.columnSpacing
    readonly property int cellWidth: Math.min(Math.floor(root.roomForCells / root.columns),
                                             Math.max(Theme.grown(168), Math.ceil(root.widest)))

    objectName: "storageLegend"
    columns: Math.max(1, Math.min(4, Math.floor((root.room + root.columnSpacing)
                                                / (root.narrowest + root.columnSpacing))))
    columnSpacing: Theme.spaceXs
    rowSpacing: 0
    Accessible.role: Accessible.List
    Accessible.name: Strings.usedSpace

    Keys.onLeftPressed: root.go(root.current + (Theme.mirrored ? 1 : -1))
    Keys.onRightPressed: root.go(root.current + (Theme.mirrored ? -1 : 1))
    Keys.onUpPressed: root.go(root.current - root.columns)
    Keys.onDownPressed: root.go(root.current + root.columns)

    Repeater {
        id: rows

        model: root.storage

        Pressable {
            id: row

            required property string label
            required property color colour
            required property string size
            required property int category
            required property int index
            readonly property real needed: 16 + name.implicitWidth + Theme.spaceS + amount.implicitWidth

            objectName: "legend-" + row.category
            width: root.cellWidth
            height: name.height + Theme.spaceS
            leftInset: row.mirrored ? 0 : -6
            rightInset: row.mirrored ? -6 : 0
            ringGap: 0
            text: Strings.spoken([row.label, row.size])
            Accessible.description: Strings.chooseCategory
            activeFocusOnTab: row.index === Math.min(root.current, rows.count - 1)
            onNeededChanged: root.widest = Math.max(root.widest, row.needed)
            onClicked: root.chosen(row.category)
            onActiveFocusChanged: {
                if (row.activeFocus)
                    root.current = row.index;
            }

            contentItem: Item {
                Rectangle {
                    anchors.left: parent.left
                    anchors.verticalCenter: parent.verticalCenter
                    width: 8
                    height: 8
                    radius: 4
                    color: row.colour
                }

                CaptionText {
                    id: name

                    anchors.left: parent.left
                    anchors.leftMargin: 16
                    anchors.verticalCenter: parent.verticalCenter
                    text: row.label
                    color: Theme.secondary
                    Accessible.ignored: true
                }

                CaptionText {
                    id: amount

                    anchors.left: name.right
                    anchors.leftMargin: Theme.spaceS
                    anchors.right: parent.right
                    anchors.verticalCenter: parent.verticalCenter
                    text: row.size
                    color: Theme.text
                    font.weight: Font.DemiBold
                    Accessible.ignored: true
                }
            }
        }
    }

    function go(index: int) {
        if (index >= 0 && index < rows.count)
            rows.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }
}

import QtQuick
import Orlen.App

/// Placeholder rows for a list that is still loading.
Column {
    id: root

    property int rows: 6
    property int rowHeight: 60

    Accessible.ignored: true

    component Bar: Rectangle {
        height: 11
        radius: height / 2
        color: Theme.inset
    }

    Repeater {
        model: root.rows

        Item {
            id: row

            required property int index

            width: root.width
            height: root.rowHeight
            opacity: 1 - row.index / (root.rows + 1)

            Rectangle {
                id: tile

                anchors.left: parent.left
                anchors.leftMargin: 12
                anchors.verticalCenter: parent.verticalCenter
                width: 40
                height: 40
                radius: 11
                color: Theme.inset
            }

            Bar {
                anchors.left: tile.right
                anchors.leftMargin: 14
                anchors.top: tile.top
                anchors.topMargin: 5
                width: 120 + row.index * 37 % 90
            }

            Bar {
                anchors.left: tile.right
                anchors.leftMargin: 14
                anchors.bottom: tile.bottom
                anchors.bottomMargin: 5
                width: 180 + row.index * 53 % 110
                height: 9
            }

            Bar {
                anchors.right: parent.right
                anchors.rightMargin: 40
                anchors.verticalCenter: parent.verticalCenter
                width: 52
            }
        }
    }
}

import QtQuick
import Orlen.App

/// One way to sort a list; pressing it again reverses the order.
Pressable {
    id: root

    required property bool active
    property bool reversed: false

    implicitWidth: label.implicitWidth + 16 + 14
    implicitHeight: Theme.controlHeight
    ringGap: 0
    Accessible.name: Strings.sortBy(root.text)
    Accessible.checkable: true
    Accessible.checked: root.active

    contentItem: Item {
        SmallText {
            id: label

            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            anchors.leftMargin: 8
            text: root.text
            color: root.active ? Theme.text : Theme.secondary
            font.weight: root.active ? Font.DemiBold : Font.Medium
        }

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: label.right
            anchors.leftMargin: Theme.spaceXs
            visible: root.active
            name: root.reversed ? "chevron.up" : "chevron.down"
            colour: Theme.text
            size: 10
        }
    }
}

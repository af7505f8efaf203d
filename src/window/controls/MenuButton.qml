import QtQuick
import Orlen.App

/// A small button that says what is chosen and opens a menu.
Pressable {
    id: root

    required property PopupMenu menu

    /// Opens the menu below the button, with this row of it current.
    function openMenu(row: int) {
        root.menu.currentIndex = row;
        root.menu.popup(root, Theme.mirrored ? root.width - root.menu.width : 0, root.height + Theme.spaceXs);
        root.menu.currentIndex = row;
    }

    implicitWidth: title.implicitWidth + arrow.width + 2 * Theme.spaceS + Theme.spaceXs
    implicitHeight: Theme.widened(28)
    corner: 7
    fill: root.hovered || root.down || root.menu.visible ? Theme.hover : Theme.inset
    edgeWidth: 1
    Accessible.role: Accessible.ButtonMenu

    contentItem: Item {
        SmallText {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - arrow.width - 2 * Theme.spaceS - Theme.spaceXs)
            text: root.text
            color: Theme.text
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Symbol {
            id: arrow

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: 10
        }
    }
}

import QtQuick
import Orlen.App

/// One of several periods to look back over.
Pressable {
    id: root

    required property bool chosen

    implicitWidth: label.implicitWidth + 2 * Theme.spaceM
    implicitHeight: Theme.controlHeight
    fill: root.chosen ? Theme.accentSoft : root.hovered || root.down ? Theme.hover : Theme.clear
    edgeWidth: root.chosen ? 0 : 1
    Accessible.role: Accessible.RadioButton
    Accessible.checkable: true
    Accessible.checked: root.chosen

    contentItem: Item {
        SmallText {
            id: label

            anchors.centerIn: parent
            text: root.text
            color: root.chosen ? Theme.accent : Theme.text
            font.weight: Font.Medium
            Accessible.ignored: true
        }
    }
}

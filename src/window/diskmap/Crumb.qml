import QtQuick
import Orlen.App

/// One folder of the breadcrumb, with the arrow before it.
Pressable {
    id: root

    required property string name
    required property int step
    required property bool isGap
    required property bool isLast
    readonly property int arrowWidth: root.step === 0 ? 0 : 18

    implicitWidth: root.arrowWidth + Math.ceil(label.implicitWidth) + 2 * Theme.controlRadius
    implicitHeight: Theme.grown(30)
    leftInset: root.mirrored ? 0 : root.arrowWidth
    rightInset: root.mirrored ? root.arrowWidth : 0
    enabled: !root.isLast
    fill: root.isLast ? Theme.inset : root.hovered ? Theme.hover : Theme.clear
    ringGap: 1
    text: root.isGap ? Strings.foldersBetween : root.name

    contentItem: Item {
        Symbol {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            visible: root.arrowWidth > 0
            name: "chevron.right"
            colour: Theme.tertiary
            size: 11
        }

        BodyText {
            id: label

            anchors.left: parent.left
            anchors.leftMargin: root.arrowWidth + Theme.controlRadius
            anchors.verticalCenter: parent.verticalCenter
            width: root.width - root.arrowWidth - 2 * Theme.controlRadius
            text: root.isGap ? "…" : root.text
            elide: Text.ElideMiddle
            color: root.isLast ? Theme.text : Theme.accent
            font.weight: Font.DemiBold
        }
    }

    ToolTipBubble {
        shown: root.hovered && (root.isGap || label.truncated)
        text: root.text
    }
}

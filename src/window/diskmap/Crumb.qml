import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// One folder of a breadcrumb, and the arrow before it.
T.AbstractButton {
    id: root

    required property string name
    required property int step
    required property bool isGap
    required property bool isLast

    readonly property bool isFirst: root.step === 0

    implicitWidth: arrow.width + Math.ceil(label.implicitWidth) + 2 * Theme.controlRadius
    implicitHeight: Math.round(30 * Theme.textScale)
    enabled: !root.isLast
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    text: root.isGap ? Strings.foldersBetween : root.name
    Accessible.name: root.text

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        Symbol {
            id: arrow

            anchors.verticalCenter: parent.verticalCenter
            width: root.isFirst ? 0 : 18
            size: 11
            fillMode: Image.PreserveAspectFit
            horizontalAlignment: Image.AlignLeft
            visible: !root.isFirst
            name: "chevron.right"
            colour: Theme.tertiary
        }

        BodyText {
            id: label

            anchors.left: arrow.right
            anchors.leftMargin: Theme.controlRadius
            anchors.verticalCenter: parent.verticalCenter
            width: root.width - arrow.width - 2 * Theme.controlRadius
            text: root.isGap ? "…" : root.text
            elide: Text.ElideMiddle
            color: root.isLast ? Theme.text : Theme.accent
            font.weight: Font.DemiBold
        }
    }

    background: Item {
        Rectangle {
            x: arrow.width
            width: parent.width - arrow.width
            height: parent.height
            radius: Theme.controlRadius
            color: root.isLast ? Theme.inset : root.hovered ? Theme.hover : "transparent"

            FocusRing {
                shown: root.visualFocus
                gap: 1
            }
        }
    }

    ToolTipBubble {
        shown: root.hovered && (root.isGap || label.truncated)
        text: root.text
    }
}

import QtQuick
import Orlen.App

/// A button with only an icon; its text is read by screen readers and shown as a tool tip.
Pressable {
    id: root

    required property string symbol
    property bool framed: false
    property int side: Theme.controlHeight
    property int symbolSize: 16
    property color ink: Theme.secondary

    implicitWidth: root.side
    implicitHeight: root.side
    edgeWidth: root.framed ? 1 : 0
    fill: root.hovered || root.down ? Theme.hover : root.framed ? Theme.inset : Theme.clear

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            colour: root.hovered && root.enabled ? Theme.text : root.ink
            size: root.symbolSize
            opacity: root.enabled ? 1 : 0.5
        }
    }

    ToolTipBubble {
        shown: root.hovered && root.text !== ""
        text: root.text
    }
}

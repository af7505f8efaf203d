import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A button that is an icon only; its text is what a screen reader says and the tool tip shows.
T.Button {
    id: root

    required property string symbol
    property bool framed: false
    property int symbolSize: 16
    property color ink: Theme.secondary

    implicitWidth: Theme.controlHeight
    implicitHeight: Theme.controlHeight
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: root.text

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            colour: root.hovered && root.enabled ? Theme.text : root.ink
            size: root.symbolSize
            opacity: root.enabled ? 1 : 0.5
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.hovered || root.down ? Theme.hover : root.framed ? Theme.inset : "transparent"
        border.width: root.framed ? 1 : 0
        border.color: Theme.stroke

        FocusRing {
            shown: root.visualFocus
        }
    }

    ToolTipBubble {
        shown: root.hovered && root.text !== ""
        text: root.text
    }
}

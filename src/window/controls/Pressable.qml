import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// What can be pressed, by the pointer, Space or Enter: a ground with a focus ring. What stands on it is its content;
/// its text is what a screen reader says.
T.AbstractButton {
    id: root

    property color fill: root.hovered || root.down ? Theme.hover : Theme.clear
    property color edge: Theme.stroke
    property int edgeWidth: 0
    property real corner: Theme.controlRadius
    /// Between the edge and the focus ring.
    property int ringGap: 3

    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: root.text

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    background: Rectangle {
        radius: root.corner
        color: root.fill
        border.width: root.edgeWidth
        border.color: root.edge

        Ease on color {}
        Ease on border.color {}

        FocusRing {
            shown: root.visualFocus
            gap: root.ringGap
            shape: root.corner
        }
    }
}

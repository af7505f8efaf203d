import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// The base of all buttons: a background with a focus ring, pressed by pointer, Space or Enter. Its text is
/// read by screen readers, not drawn.
T.AbstractButton {
    id: root

    property color fill: root.hovered || root.down ? Theme.hover : Theme.clear
    property color edge: Theme.stroke
    property int edgeWidth: 0
    property real corner: Theme.controlRadius
    /// Gap between the edge and the focus ring.
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
            shown: InputMode.keyed && root.activeFocus
            gap: root.ringGap
            shape: root.corner
        }
    }
}

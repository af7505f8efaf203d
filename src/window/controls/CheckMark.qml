import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A check box; shows a dash when partially checked.
T.CheckBox {
    id: root

    readonly property int side: Theme.grown(18)
    readonly property bool isMarked: root.checkState !== Qt.Unchecked

    implicitWidth: root.side + leftPadding + rightPadding
    implicitHeight: root.side + topPadding + bottomPadding
    padding: 4
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true

    indicator: Rectangle {
        x: root.leftPadding
        y: (root.height - height) / 2
        width: root.side
        height: root.side
        radius: Theme.chipRadius
        color: root.isMarked ? Theme.accentFill : Theme.card
        border.width: root.isMarked ? 0 : 1.5
        border.color: root.hovered ? Theme.accent : Theme.tertiary
        opacity: root.enabled ? 1 : 0.45

        Symbol {
            anchors.centerIn: parent
            visible: root.isMarked
            name: root.checkState === Qt.PartiallyChecked ? "minus" : "checkmark"
            colour: Theme.overAccent
            size: 12
        }

        FocusRing {
            shown: InputMode.keyed && root.activeFocus
            gap: 2
            shape: Theme.chipRadius
        }
    }
}

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// An on-off switch. Its text is its accessible name and is not drawn.
T.Switch {
    id: root

    implicitWidth: 42
    implicitHeight: 26
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: root.text

    indicator: Rectangle {
        y: (root.height - height) / 2
        width: 42
        height: 24
        radius: 12
        color: root.checked ? Theme.accentFill : Theme.track
        border.width: root.checked ? 0 : 1
        border.color: Theme.tertiary
        opacity: root.enabled ? 1 : 0.5

        Ease on color {}

        Rectangle {
            x: root.checked === root.mirrored ? 3 : parent.width - width - 3
            y: 3
            width: 18
            height: 18
            radius: 9
            color: root.checked ? Theme.overAccent : Theme.knob
            border.width: root.checked ? 0 : 1
            border.color: Theme.tertiary

            Ease on x {}
        }

        FocusRing {
            shown: InputMode.keyed && root.activeFocus
            shape: 12
        }
    }
}

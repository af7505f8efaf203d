import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// An on-off switch. Its text is its accessible name and is not drawn.
T.Switch {
    id: root

    readonly property int gap: Theme.grown(3)

    implicitWidth: Theme.grown(42)
    implicitHeight: Theme.grown(26)
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: root.text

    indicator: Rectangle {
        y: (root.height - height) / 2
        width: root.implicitWidth
        height: Theme.grown(24)
        radius: height / 2
        color: !root.checked ? Theme.track : root.enabled ? Theme.accentFill : Theme.tertiary
        border.width: root.checked ? 0 : 1
        border.color: Theme.tertiary
        opacity: root.enabled ? 1 : 0.5

        Ease on color {}

        Rectangle {
            x: root.checked === root.mirrored ? root.gap : parent.width - width - root.gap
            y: root.gap
            width: parent.height - 2 * root.gap
            height: width
            radius: height / 2
            color: root.checked ? Theme.overAccent : Theme.knob
            border.width: root.checked ? 0 : 1
            border.color: Theme.tertiary

            Ease on x {}
        }

        FocusRing {
            shown: InputMode.keyed && root.activeFocus
            shape: parent.radius
        }
    }
}

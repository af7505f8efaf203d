import QtQuick
import Orlen.App

/// A thin bar, filled from where the reader begins or from `start`.
Rectangle {
    id: root

    /// Both from 0 to 1.
    required property real value
    property real start: 0
    property color tone: Theme.accent

    implicitHeight: 4
    radius: height / 2
    color: Theme.track
    Accessible.role: Accessible.ProgressBar

    Rectangle {
        readonly property real gap: Math.min(root.width - width, Math.round(root.width * root.start))

        x: Theme.mirrored ? root.width - width - gap : gap
        width: Math.max(root.value > 0 ? root.height : 0, Math.round(root.width * Math.min(1, root.value)))
        height: parent.height
        radius: parent.radius
        color: root.tone

        Spring on width {
            enabled: Theme.moves
            response: 0.9
        }
    }
}

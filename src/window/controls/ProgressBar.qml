import QtQuick
import Orlen.App

/// A thin bar, filled from the left.
Rectangle {
    id: root

    /// 0 to 1
    required property real value
    property color tone: Theme.accent

    implicitHeight: 4
    radius: height / 2
    color: Theme.track
    Accessible.role: Accessible.ProgressBar

    Rectangle {
        width: Math.max(root.value > 0 ? root.height : 0, Math.round(parent.width * Math.min(1, root.value)))
        height: parent.height
        radius: parent.radius
        color: root.tone

        Behavior on width {
            enabled: Theme.moves
            SpringMotion {
                response: 0.9
                damping: 0.85
            }
        }
    }
}

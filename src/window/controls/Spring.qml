import QtQuick
import Orlen.App

/// Animates changes of position or size like a damped spring.
Behavior {
    id: root

    /// In seconds; `damping` is the damping fraction.
    property real response: 0.55
    property real damping: 0.85

    SpringMotion {
        response: root.response
        damping: root.damping
    }
}

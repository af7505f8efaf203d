import QtQuick
import Orlen.App

/// Lets a place or a size change as a damped spring does.
Behavior {
    id: root

    /// Seconds, and the damping fraction.
    property real response: 0.55
    property real damping: 0.85

    SpringMotion {
        response: root.response
        damping: root.damping
    }
}

import QtQuick
import Orlen.App

/// An animation that moves as a damped spring does; at once when the desktop asks for no motion.
NumberAnimation {
    id: root

    /// Seconds, and the damping fraction.
    required property real response
    required property real damping

    readonly property SpringCurve spring: SpringCurve {
        response: root.response
        damping: root.damping
    }

    duration: Theme.moves ? root.spring.duration : 0
    easing.type: Easing.BezierSpline
    easing.bezierCurve: root.spring.curve
}

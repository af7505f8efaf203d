import QtQuick
import Orlen.App

/// An animation like a damped spring; instant if the desktop asks for no motion.
NumberAnimation {
    id: root

    /// In seconds; `damping` is the damping fraction.
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

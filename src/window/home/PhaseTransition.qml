import QtQuick
import Orlen.App

/// From one phase of a scan to the next: what moves glides above the rest, which fades.
Transition {
    id: root

    /// The item containing both ends of the move.
    required property Item over
    /// The item that appears; the others have faded out by then.
    required property Item arriving
    required property real response
    required property real damping

    ParentAnimation {
        via: root.over

        SpringMotion {
            properties: "x,y,width,height"
            response: root.response
            damping: root.damping
        }
    }

    NumberAnimation {
        property: "opacity"
        exclude: [root.arriving]
        duration: Theme.hoverDuration
    }

    SpringMotion {
        target: root.arriving
        property: "opacity"
        response: root.response
        damping: root.damping
    }
}

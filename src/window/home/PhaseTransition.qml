import QtQuick
import Orlen.App

/// The way from one phase of a scan to the next: what changes place glides there above the rest, which fades.
Transition {
    id: root

    /// Where the way leads over: the item around all places.
    required property Item over
    /// What comes into sight; the rest is gone before it is there.
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

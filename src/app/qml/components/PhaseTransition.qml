import QtQuick
import Orlen.App

/// The way from one phase of a scan to the next: what changes place glides there above the rest, which fades.
Transition {
    id: root

    /// Where the way leads over: the item around all places.
    required property Item over
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

    SpringMotion {
        property: "opacity"
        response: root.response
        damping: root.damping
    }
}

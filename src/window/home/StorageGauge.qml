import QtQuick
import Orlen.App

/// The animated storage ring: springs to a new breakdown and pulses during work.
StorageRing {
    id: root

    property bool breathing: false

    thickness: 0.095
    track: Theme.track
    Accessible.role: Accessible.Chart
    Accessible.name: Strings.free.arg(root.storage.freeText)

    onRetargeted: motion.restart()

    SpringMotion {
        id: motion

        target: root
        property: "progress"
        from: 0
        to: 1
        response: 0.9
        damping: 0.85
    }

    SequentialAnimation {
        running: root.breathing && Theme.moves && root.visible
        loops: Animation.Infinite
        onStopped: root.opacity = 1

        NumberAnimation {
            target: root
            property: "opacity"
            from: 1
            to: 0.55
            duration: 1600
            easing.type: Easing.InOutSine
        }
        NumberAnimation {
            target: root
            property: "opacity"
            from: 0.55
            to: 1
            duration: 1600
            easing.type: Easing.InOutSine
        }
    }
}

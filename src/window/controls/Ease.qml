import QtQuick
import Orlen.App

/// Animates changes of colour, opacity or position briefly.
Behavior {
    id: root

    property int duration: Theme.hoverDuration

    PropertyAnimation {
        duration: root.duration
        easing.type: Easing.OutCubic
    }
}

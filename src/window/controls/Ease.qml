import QtQuick
import Orlen.App

/// Lets a colour, an opacity or a place change in a short moment instead of at once.
Behavior {
    id: root

    property int duration: Theme.hoverDuration

    PropertyAnimation {
        duration: root.duration
        easing.type: Easing.OutCubic
    }
}

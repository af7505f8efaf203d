import QtQuick
import Orlen.App

/// A bordered area that groups related content.
Rectangle {
    radius: Theme.cardRadius
    color: Theme.card
    border.width: 1
    border.color: Theme.stroke
}

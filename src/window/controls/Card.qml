import QtQuick
import Orlen.App

/// A white area with a thin edge, on which a view puts what belongs together.
Rectangle {
    radius: Theme.cardRadius
    color: Theme.card
    border.width: 1
    border.color: Theme.stroke
}

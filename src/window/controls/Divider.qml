import QtQuick
import Orlen.App

/// A thin line between two parts.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.stroke
}

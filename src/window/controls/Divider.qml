import QtQuick
import Orlen.App

/// A thin separating line.
Rectangle {
    implicitWidth: 1
    implicitHeight: 1
    color: Theme.stroke
}

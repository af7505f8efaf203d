import QtQuick
import Orlen.App

/// A list row whose background shows hover and keyboard focus.
Item {
    id: root

    /// Whether the keyboard is on this row.
    property bool ringed: false
    property color fill: root.hovered ? Theme.hover : "transparent"
    readonly property alias hovered: hover.hovered
    /// Margins around the background.
    property int sideGap: 0
    property int topGap: 0
    property int bottomGap: 0
    /// A right click at this place asks for the menu of the row.
    signal menuRequested(x: real, y: real)

    Accessible.role: Accessible.ListItem
    Accessible.focusable: true

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: root.sideGap
        anchors.rightMargin: root.sideGap
        anchors.topMargin: root.topGap
        anchors.bottomMargin: root.bottomGap
        radius: Theme.controlRadius
        color: root.fill

        FocusRing {
            shown: root.ringed
            gap: 0
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: event => root.menuRequested(event.position.x, event.position.y)
    }
}

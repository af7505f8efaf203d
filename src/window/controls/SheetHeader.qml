import QtQuick
import Orlen.App

/// The top of a sheet: badge, title, lines below it and the close button.
Item {
    id: root

    required property string title
    property int titleLines: 1
    property string symbol: ""
    property color tone: Theme.accent
    property ratingValue rating
    /// Shown instead of the badge.
    property alias picture: slot.data
    default property alias lines: texts.data
    signal closeRequested

    // Rounded up, since text heights can be fractional and the edge below must be on a pixel.
    implicitHeight: Math.ceil(Math.max(texts.height, slot.height)) + Theme.spaceXl + Theme.spaceL

    Item {
        id: slot

        anchors.left: parent.left
        anchors.leftMargin: Theme.spaceXl
        y: Theme.spaceXl
        width: childrenRect.width
        height: childrenRect.height

        Badge {
            visible: root.symbol !== ""
            width: root.symbol === "" ? 0 : size
            name: root.symbol
            tone: root.tone
            size: 44
        }
    }

    Column {
        id: texts

        anchors.left: slot.right
        anchors.leftMargin: slot.width > 0 ? 14 : 0
        anchors.right: close.left
        anchors.rightMargin: Theme.spaceL
        // A lone title is level with the button.
        y: Math.round(Math.max(22, 24 + (close.height - height) / 2))
        spacing: Theme.spaceXs

        RatedTitle {
            width: parent.width
            title: root.title
            lines: root.titleLines
            rating: root.rating
        }
    }

    IconButton {
        id: close

        objectName: "closeSheet"
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXl
        y: Theme.spaceXl
        framed: true
        symbol: "xmark"
        text: Strings.close
        onClicked: root.closeRequested()
    }
}

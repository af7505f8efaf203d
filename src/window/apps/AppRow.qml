import QtQuick
import Orlen.App

/// One application in the list.
Item {
    id: root

    required property string name
    required property string origin
    required property string icon
    required property string size
    property bool focusShown: false
    signal activated

    implicitHeight: Math.max(60, texts.height + 22)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.size === "" ? root.origin : root.origin + ", " + root.size
    Accessible.focusable: true
    Accessible.onPressAction: root.activated()

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: hover.hovered ? Theme.hover : "transparent"

        FocusRing {
            shown: root.focusShown
            gap: 0
        }
    }

    AppIcon {
        id: picture

        x: 12
        anchors.verticalCenter: parent.verticalCenter
        icon: root.icon
        size: 40
    }

    Column {
        id: texts

        anchors.left: picture.right
        anchors.leftMargin: 14
        anchors.right: bytes.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 3

        BodyText {
            width: parent.width
            text: root.name
            font.weight: Font.Medium
        }

        CaptionText {
            width: parent.width
            text: root.origin
            elide: Text.ElideMiddle
            color: hover.hovered ? Theme.secondary : Theme.tertiary
        }
    }

    BodyText {
        id: bytes

        anchors.right: chevron.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(implicitWidth, 56)
        horizontalAlignment: Text.AlignRight
        text: root.size
        font.weight: Font.DemiBold
    }

    Rectangle {
        anchors.right: bytes.right
        anchors.verticalCenter: parent.verticalCenter
        visible: root.size === ""
        width: 48
        height: 10
        radius: 5
        color: Theme.track
    }

    Symbol {
        id: chevron

        anchors.right: parent.right
        anchors.rightMargin: 14
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        colour: Theme.tertiary
        size: 12
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onTapped: root.activated()
    }
}

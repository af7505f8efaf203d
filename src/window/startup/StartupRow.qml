import QtQuick
import Orlen.App

/// One startup item with its switch.
Item {
    id: root

    required property string name
    required property string program
    required property string path
    required property string symbol
    required property bool isOn
    required property bool isBusy
    required property bool isPartOfDesktop
    required property bool isSwitchable
    required property string reason
    property bool lineShown: false
    property bool focusShown: false
    signal toggled

    implicitHeight: texts.height + 24
    Accessible.role: Accessible.ListItem
    Accessible.name: root.name
    Accessible.description: root.isSwitchable ? root.program : root.reason

    Rectangle {
        x: 64
        width: parent.width - x - 18
        height: 1
        visible: root.lineShown
        color: Theme.stroke
    }

    FocusRing {
        shown: root.focusShown
        anchors.leftMargin: 6
        anchors.rightMargin: 6
        anchors.topMargin: 3
        anchors.bottomMargin: 2
        gap: 0
    }

    Rectangle {
        id: tile

        x: 18
        anchors.verticalCenter: parent.verticalCenter
        width: 32
        height: 32
        radius: 9
        color: Theme.inset

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            colour: root.isOn ? Theme.secondary : Theme.tertiary
            size: 16
        }
    }

    Column {
        id: texts

        anchors.left: tile.right
        anchors.leftMargin: 14
        anchors.right: toggle.left
        anchors.rightMargin: 20
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Item {
            width: parent.width
            height: Math.max(title.height, chip.visible ? chip.height : 0)

            BodyText {
                id: title

                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(implicitWidth, parent.width - (chip.visible ? chip.width + 10 : 0))
                text: root.name
                font.weight: Font.Medium
            }

            RatingChip {
                id: chip

                anchors.left: title.right
                anchors.leftMargin: 10
                anchors.verticalCenter: parent.verticalCenter
                rating: root.isPartOfDesktop ? "review" : ""
                label: Strings.partOfDesktop
                symbol: "exclamationmark.triangle.fill"
            }
        }

        SmallText {
            width: parent.width
            visible: root.program !== ""
            text: root.program
            elide: Text.ElideMiddle
        }

        CaptionText {
            width: parent.width
            text: root.path
            elide: Text.ElideMiddle
        }
    }

    ToggleSwitch {
        id: toggle

        objectName: "switch"
        anchors.right: parent.right
        anchors.rightMargin: 18
        anchors.verticalCenter: parent.verticalCenter
        text: root.name
        enabled: root.isSwitchable
        Accessible.description: root.reason
        focusPolicy: Qt.NoFocus
        checkable: !root.isBusy
        checked: root.isOn
        opacity: root.isBusy ? 0.6 : 1
        onToggled: root.toggled()
    }

    // A switch that is off-limits hears no pointer of its own.
    HoverHandler {
        id: hover
    }

    ToolTipBubble {
        parent: toggle
        x: toggle.width - implicitWidth
        text: root.reason
        shown: !root.isSwitchable && (hover.hovered || root.focusShown)
    }
}

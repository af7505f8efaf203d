import QtQuick
import Orlen.App

/// One startup item with its switch.
ListRow {
    id: root

    required property string name
    required property string program
    required property string path
    required property string details
    required property string hint
    required property string symbol
    required property bool isOn
    required property bool isBusy
    required property bool isPartOfDesktop
    required property bool isSwitchable
    required property string reason
    property bool lineShown: false
    signal toggled

    implicitHeight: texts.height + 24
    fill: "transparent"
    sideGap: 6
    topGap: 3
    bottomGap: 2
    Accessible.name: root.name
    Accessible.description: root.details + "\n" + root.hint

    Divider {
        anchors.left: parent.left
        anchors.leftMargin: 64
        anchors.right: parent.right
        anchors.rightMargin: Theme.cardMargin
        visible: root.lineShown
    }

    Rectangle {
        id: tile

        anchors.left: parent.left
        anchors.leftMargin: Theme.cardMargin
        anchors.verticalCenter: parent.verticalCenter
        width: 32
        height: 32
        radius: 9
        color: Theme.inset

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            colour: root.isOn ? Theme.secondary : Theme.tertiary
        }
    }

    Column {
        id: texts

        anchors.left: tile.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: toggle.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        RatedTitle {
            width: parent.width
            title: root.name
            size: Theme.bodySize
            weight: Font.Medium
            role: Accessible.StaticText
            chipName: root.isPartOfDesktop ? "review" : ""
            chipLabel: Strings.partOfDesktop
            chipSymbol: "exclamationmark.triangle.fill"
        }

        SmallText {
            width: parent.width
            text: root.details
            elide: Text.ElideRight
        }

        CaptionText {
            width: parent.width
            text: root.program !== "" ? root.program : root.path
            elide: Text.ElideMiddle
        }
    }

    ToggleSwitch {
        id: toggle

        objectName: "switch"
        anchors.right: parent.right
        anchors.rightMargin: Theme.cardMargin
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

    // It belongs to the row, since a disabled switch gets no hover events itself.
    ToolTipBubble {
        parent: texts
        x: Theme.mirrored ? texts.width - width : 0
        widest: texts.width
        text: root.hint
        shown: root.hovered || root.ringed
    }
}

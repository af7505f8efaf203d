import QtQuick
import Orlen.App

/// One leftover with its check box.
Item {
    id: root

    required property string name
    required property string folder
    required property string size
    required property string note
    required property bool checked
    property bool focusShown: false
    signal toggled

    implicitHeight: Math.round(52 * Theme.textScale)
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.name
    Accessible.description: root.folder + ", " + root.size + (root.note === "" ? "" : ", " + root.note)
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.focusable: true
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: pointer.containsMouse || mark.hovered ? Theme.hover : "transparent"

        FocusRing {
            shown: root.focusShown
            gap: 0
        }
    }

    // Pointer handlers of a row get no events in a popup of Qt 6.4; a mouse area does.
    MouseArea {
        id: pointer

        anchors.fill: parent
        hoverEnabled: true
        onClicked: root.toggled()
    }

    CheckMark {
        id: mark

        objectName: "check"
        x: 8
        anchors.verticalCenter: parent.verticalCenter
        checked: root.checked
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: root.toggled()
    }

    Column {
        anchors.left: mark.right
        anchors.leftMargin: 10
        anchors.right: chip.visible ? chip.left : bytes.left
        anchors.rightMargin: 16
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Text {
            width: parent.width
            text: root.name
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            color: Theme.text
            font.pixelSize: Theme.bodySize
            font.weight: Font.Medium
        }

        Text {
            width: parent.width
            text: root.folder
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            color: pointer.containsMouse || mark.hovered ? Theme.secondary : Theme.tertiary
            font.pixelSize: Theme.captionSize
        }
    }

    RatingChip {
        id: chip

        anchors.right: bytes.left
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        name: root.note === "" ? "" : "review"
        label: root.note
        symbol: "eye.fill"
    }

    Text {
        id: bytes

        anchors.right: parent.right
        anchors.rightMargin: 12
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(implicitWidth, 64)
        horizontalAlignment: Text.AlignRight
        text: root.size
        textFormat: Text.PlainText
        color: Theme.text
        font.pixelSize: Theme.bodySize
        font.weight: Font.DemiBold
    }
}

import QtQuick
import Orlen.App

/// One application in the list.
ListRow {
    id: root

    required property string name
    required property string origin
    required property string usage
    required property string icon
    required property string size
    required property bool isRemovable
    required property bool checked
    signal activated
    signal toggled

    implicitHeight: Math.max(60, texts.height + 22)
    Accessible.name: root.name
    Accessible.description: Strings.spoken([root.origin, root.usage, root.size])
    Accessible.checkable: root.isRemovable
    Accessible.checked: root.checked
    Accessible.onPressAction: root.activated()
    Accessible.onToggleAction: root.toggled()

    CheckMark {
        id: mark

        objectName: "check"
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        visible: root.isRemovable
        checked: root.checked
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: root.toggled()
    }

    AppIcon {
        id: picture

        anchors.left: mark.right
        anchors.leftMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        icon: root.icon
    }

    RowTexts {
        id: texts

        anchors.left: picture.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: bytes.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        name: root.name
        place: root.origin
        note: root.usage
        placeInk: root.hovered ? Theme.secondary : Theme.tertiary
    }

    BodyText {
        id: bytes

        anchors.right: chevron.left
        anchors.rightMargin: Theme.spaceM
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
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        name: "chevron.right"
        colour: Theme.tertiary
        size: 12
    }

    TapHandler {
        onTapped: root.activated()
    }
}

import QtQuick
import Orlen.App

/// One leftover with its check box, and a button to look at it while it is hovered or current.
ListRow {
    id: root

    required property string name
    required property string folder
    required property string size
    required property string note
    required property string explanation
    required property bool checked
    property bool isCurrent: false
    signal toggled
    signal revealRequested

    implicitHeight: Math.max(Theme.grown(52), texts.height + 16)
    Accessible.role: Accessible.CheckBox
    Accessible.name: root.name
    Accessible.description: Strings.spoken([root.folder, root.size, root.note, root.explanation])
    Accessible.checkable: true
    Accessible.checked: root.checked
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()

    TapHandler {
        onTapped: root.toggled()
    }

    CheckMark {
        id: mark

        objectName: "check"
        anchors.left: parent.left
        anchors.leftMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        checked: root.checked
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: root.toggled()
    }

    RowTexts {
        id: texts

        anchors.left: mark.right
        anchors.leftMargin: Theme.spaceS
        anchors.right: look.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        name: root.name
        place: root.folder
        note: root.explanation
        placeInk: root.hovered ? Theme.secondary : Theme.tertiary
    }

    IconButton {
        id: look

        objectName: "revealLeftover"
        anchors.right: chip.visible ? chip.left : bytes.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        opacity: root.hovered || root.isCurrent ? 1 : 0
        side: 32
        focusPolicy: Qt.NoFocus
        symbol: "reveal"
        text: Strings.reveal
        onClicked: root.revealRequested()
    }

    RatingChip {
        id: chip

        anchors.right: bytes.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        name: root.note === "" ? "" : "review"
        text: root.note
        symbol: "eye.fill"
    }

    BodyText {
        id: bytes

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(implicitWidth, 64)
        horizontalAlignment: Text.AlignRight
        text: root.size
        font.weight: Font.DemiBold
    }
}

import QtQuick
import Orlen.App

/// One path or name that is never offered, with a button to remove it from the list.
ListRow {
    id: root

    required property string what
    required property string kind
    required property string symbol
    property bool isCurrent: false
    signal removeRequested

    fill: root.hovered ? Theme.inset : "transparent"
    Accessible.name: Strings.spoken([root.what, root.kind])
    Accessible.selected: root.isCurrent

    Symbol {
        id: icon

        anchors.left: parent.left
        anchors.leftMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        name: root.symbol
    }

    RowTexts {
        anchors.left: icon.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: remove.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        name: root.what
        place: root.kind
    }

    IconButton {
        id: remove

        objectName: "removeExclusion"
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        side: 32
        symbol: "xmark"
        symbolSize: 13
        text: Strings.offerAgain(root.what)
        focusPolicy: root.isCurrent || remove.activeFocus ? Qt.StrongFocus : Qt.NoFocus
        onClicked: root.removeRequested()
    }
}

import QtQuick
import Orlen.App

/// What a screen shows when it is empty: a badge, a sentence and at most one button.
Column {
    id: root

    required property string symbol
    required property color tone
    required property string text
    property string action: ""
    signal triggered

    spacing: Theme.spaceL

    Badge {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.symbol
        tone: root.tone
        size: 84
    }

    LeadText {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(root.width, 460)
        horizontalAlignment: Text.AlignHCenter
        text: root.text
    }

    AppButton {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.action !== ""
        primary: true
        text: root.action
        onClicked: root.triggered()
    }
}

import QtQuick
import Orlen.App

/// What a screen shows while it has nothing: a tile, a sentence, at most one button.
Column {
    id: root

    required property string symbol
    required property color tone
    required property string text
    property string action: ""
    signal triggered

    spacing: 16

    Badge {
        anchors.horizontalCenter: parent.horizontalCenter
        name: root.symbol
        tone: root.tone
        size: 84
    }

    Text {
        anchors.horizontalCenter: parent.horizontalCenter
        width: Math.min(root.width, 460)
        horizontalAlignment: Text.AlignHCenter
        wrapMode: Text.WordWrap
        text: root.text
        textFormat: Text.PlainText
        color: Theme.secondary
        font.pixelSize: Theme.headlineSize
    }

    AppButton {
        anchors.horizontalCenter: parent.horizontalCenter
        visible: root.action !== ""
        primary: true
        text: root.action
        onClicked: root.triggered()
    }
}

import QtQuick
import Orlen.App

/// A sentence at the bottom of its parent that goes away by itself.
Rectangle {
    id: root

    property int shownFor: 6000
    property string message: ""

    function show(message: string) {
        root.message = message;
        root.opacity = 1;
        timer.restart();
    }

    anchors.horizontalCenter: parent.horizontalCenter
    anchors.bottom: parent.bottom
    anchors.bottomMargin: 24
    width: Math.min(label.implicitWidth + 40, parent.width - 2 * Theme.pageMargin)
    height: label.height + 24
    radius: Theme.cardRadius
    color: Theme.text
    opacity: 0
    visible: root.opacity > 0
    Accessible.role: Accessible.AlertMessage
    Accessible.name: root.message

    Behavior on opacity {
        NumberAnimation {
            duration: Theme.screenDuration
        }
    }

    Text {
        id: label

        anchors.centerIn: parent
        width: Math.min(implicitWidth, root.parent ? root.parent.width - 2 * Theme.pageMargin - 40 : implicitWidth)
        text: root.message
        textFormat: Text.PlainText
        wrapMode: Text.WordWrap
        color: Theme.window
        font.pixelSize: Theme.bodySize
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    Timer {
        id: timer

        interval: root.shownFor
        onTriggered: root.opacity = 0
    }
}

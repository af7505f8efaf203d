import QtQuick
import Orlen.App

/// The user's question, on the right of the conversation.
Item {
    id: root

    required property string text

    implicitHeight: bubble.height
    Accessible.role: Accessible.StaticText
    Accessible.name: Strings.yourQuestion(root.text)

    Rectangle {
        id: bubble

        anchors.right: parent.right
        width: Math.ceil(Math.min(label.implicitWidth + 32, root.width * 0.82))
        height: label.height + 20
        radius: Math.min(18, height / 2)
        color: Theme.accentFill

        BodyText {
            id: label

            x: 16
            y: 10
            width: parent.width - 32
            text: root.text
            wrapMode: Text.Wrap
            color: Theme.overAccent
            Accessible.ignored: true
        }
    }
}

import QtQuick
import Orlen.App

/// The field for questions. Enter sends; Up and Down recall earlier questions.
InputField {
    id: root

    required property ConversationModel conversation
    signal asked(question: string)

    objectName: "askField"
    implicitHeight: Theme.widened(48)
    leftPadding: Theme.mirrored ? 54 : Theme.spaceL
    rightPadding: Theme.mirrored ? Theme.spaceL : 54
    fill: Theme.card
    corner: Math.min(24, root.height / 2)
    placeholderText: Strings.askPlaceholder
    maximumLength: 500

    Keys.onUpPressed: root.text = root.conversation.recall(ConversationModel.Earlier)
    Keys.onDownPressed: root.text = root.conversation.recall(ConversationModel.Later)

    Pressable {
        id: send

        objectName: "sendQuestion"
        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        width: root.height - 14
        height: width
        enabled: root.text.trim() !== "" && !root.conversation.thinking
        focusPolicy: Qt.TabFocus
        corner: send.height / 2
        ringGap: 2
        fill: !send.enabled ? Theme.inset : send.down ? Theme.accentFillPressed
                                                      : send.hovered ? Theme.accentFillHover : Theme.accentFill
        text: Strings.send
        onClicked: root.asked(root.text)

        contentItem: Item {
            Symbol {
                anchors.centerIn: parent
                name: "arrow.up"
                colour: send.enabled ? Theme.overAccent : Theme.tertiary
            }
        }
    }

    onAccepted: root.asked(root.text)
}

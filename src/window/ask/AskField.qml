import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// Where a question is typed. Enter sends it, the arrow keys bring back earlier ones.
T.TextField {
    id: root

    required property ConversationModel conversation
    signal asked(question: string)

    objectName: "askField"
    implicitHeight: Math.round(48 * Math.max(1, Theme.textScale * 0.9))
    leftPadding: 18
    rightPadding: 54
    verticalAlignment: TextInput.AlignVCenter
    color: Theme.text
    placeholderText: Strings.askPlaceholder
    placeholderTextColor: Theme.tertiary
    selectionColor: Theme.accentFill
    selectedTextColor: Theme.overAccent
    selectByMouse: true
    maximumLength: 500
    font.family: hint.font.family
    font.pixelSize: Theme.bodySize
    Accessible.name: root.placeholderText

    Keys.onUpPressed: root.text = root.conversation.recall(ConversationModel.Earlier)
    Keys.onDownPressed: root.text = root.conversation.recall(ConversationModel.Later)
    Keys.onEscapePressed: event => {
        event.accepted = root.text !== "";
        root.clear();
    }

    background: Rectangle {
        radius: Math.min(24, height / 2)
        color: Theme.card
        border.width: root.activeFocus ? 2 : 1
        border.color: root.activeFocus ? Theme.accent : Theme.stroke
    }

    // Fields would take their font from the desktop, texts take it from the program.
    BodyText {
        id: hint

        anchors.fill: parent
        anchors.leftMargin: root.leftPadding
        anchors.rightMargin: root.rightPadding
        verticalAlignment: Text.AlignVCenter
        visible: root.length === 0 && root.preeditText === ""
        text: root.placeholderText
        color: root.placeholderTextColor
        Accessible.ignored: true
    }

    T.AbstractButton {
        id: send

        objectName: "sendQuestion"
        anchors.right: parent.right
        anchors.rightMargin: 7
        anchors.verticalCenter: parent.verticalCenter
        width: root.height - 14
        height: width
        enabled: root.text.trim() !== "" && !root.conversation.thinking
        focusPolicy: Qt.TabFocus
        hoverEnabled: true
        text: Strings.send
        Accessible.name: send.text
        onClicked: root.asked(root.text)

        Keys.onReturnPressed: send.clicked()
        Keys.onEnterPressed: send.clicked()

        contentItem: Item {
            Symbol {
                anchors.centerIn: parent
                name: "arrow.up"
                colour: send.enabled ? Theme.overAccent : Theme.tertiary
                size: 16
            }
        }

        background: Rectangle {
            radius: height / 2
            color: !send.enabled ? Theme.inset : send.down ? Theme.accentFillPressed
                                                           : send.hovered ? Theme.accentFillHover : Theme.accentFill

            FocusRing {
                shown: send.visualFocus
                shape: send.height / 2
                gap: 2
            }
        }
    }

    onAccepted: root.asked(root.text)
}

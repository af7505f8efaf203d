import QtQuick
import Orlen.App

/// The messages of a conversation, scrolled to the newest.
ScrollList {
    id: root

    required property ConversationModel conversation
    required property int columnWidth
    signal findingRequested(id: string)

    /// False for the moment the built-in matcher takes, so the dots don't flash.
    readonly property bool isWaiting: root.conversation.thinking && !patience.running

    objectName: "conversation"
    model: root.conversation
    spacing: Theme.spaceM
    cacheBuffer: 2000
    activeFocusOnTab: true
    Accessible.name: Strings.conversation

    Keys.onPressed: event => {
        if (event.matches(StandardKey.Copy)) {
            root.conversation.copy(root.currentIndex);
            event.accepted = true;
        }
    }

    delegate: FocusScope {
        id: message

        required property int index
        required property bool fromUser
        required property string text
        required property bool usedModel
        required property bool proposes
        required property FindingLinks links

        width: ListView.view ? ListView.view.width : 0
        height: message.fromUser ? question.implicitHeight : answer.implicitHeight

        ChatQuestion {
            id: question

            anchors.horizontalCenter: parent.horizontalCenter
            width: root.columnWidth
            visible: message.fromUser
            text: message.text
        }

        ChatAnswer {
            id: answer

            anchors.horizontalCenter: parent.horizontalCenter
            width: root.columnWidth
            height: implicitHeight
            visible: !message.fromUser
            text: message.text
            usedModel: message.usedModel
            proposes: message.proposes
            links: message.links
            onReviewRequested: root.conversation.review(message.index)
            onFindingRequested: id => root.findingRequested(id)
            onCopyRequested: root.conversation.copy(message.index)
        }

        FocusRing {
            anchors.fill: message.fromUser ? question : answer
            shown: root.activeFocus && !message.activeFocus && root.currentIndex === message.index
            gap: 4
            shape: Theme.cardRadius
        }
    }

    // Not margins, since positionViewAtEnd leaves those out.
    header: Item {
        width: root.width
        height: 12
    }

    footer: Item {
        width: root.width
        height: root.isWaiting ? Theme.grown(44) : 12

        ThinkingDots {
            anchors.left: parent.left
            anchors.leftMargin: Math.round((parent.width - root.columnWidth) / 2) + Theme.cardMargin
            anchors.verticalCenter: parent.verticalCenter
            visible: root.isWaiting
            active: root.isWaiting
        }
    }

    add: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.screenDuration
        }
    }

    onCountChanged: {
        root.currentIndex = root.count - 1;
        follow.restart();
    }
    onIsWaitingChanged: follow.restart()
    onHeightChanged: follow.restart()
    onWidthChanged: follow.restart()

    // Waits until the messages have been laid out.
    Timer {
        id: follow

        interval: 0
        onTriggered: root.positionViewAtEnd()
    }

    Timer {
        id: patience

        interval: 200
        running: root.conversation.thinking
    }
}

import QtQuick
import QtQuick.Window
import Orlen.App

/// Ask Orlen: a conversation about what the last scan found.
Item {
    id: root

    required property MainView view

    readonly property int columnWidth: Math.min(660, root.width - 2 * Theme.pageMargin)

    ConversationModel {
        id: theConversation
    }

    PageHeader {
        id: header

        x: Theme.sideMargin(root.width)
        y: Theme.pageMargin
        width: root.width - 2 * x
        title: Screens.title(Screens.Ask)
        subtitle: theConversation.introduction
    }

    Column {
        anchors.horizontalCenter: parent.horizontalCenter
        y: Math.max(header.y + header.height + 16,
                    Math.round((header.y + header.height + foot.y - height) / 2))
        width: root.columnWidth
        visible: theConversation.count === 0
        spacing: Theme.spaceS

        Badge {
            anchors.horizontalCenter: parent.horizontalCenter
            name: "bubble.left.and.text.bubble.right.fill"
            tone: Theme.askTone
            size: 64
        }

        LeadText {
            width: parent.width
            horizontalAlignment: Text.AlignHCenter
            topPadding: Theme.spaceS
            bottomPadding: Theme.spaceXs
            text: Strings.tryOneOfThese
        }

        Repeater {
            model: theConversation.suggestions

            SuggestionPill {
                required property string modelData
                required property int index

                objectName: "suggestion-" + index
                anchors.horizontalCenter: parent ? parent.horizontalCenter : undefined
                width: Math.min(implicitWidth, root.columnWidth)
                text: modelData
                onClicked: root.ask(text)
            }
        }
    }

    ConversationList {
        id: list

        y: header.y + header.height + 8
        width: root.width
        height: foot.y - y - 8
        visible: theConversation.count > 0
        conversation: theConversation
        columnWidth: root.columnWidth
        onFindingRequested: id => root.view.navigation.showFinding(id)
    }

    // Messages fade out below the header.
    Rectangle {
        x: Theme.mirrored ? 14 : 0
        y: list.y
        width: list.width - 14
        height: 20
        visible: list.visible && !list.atYBeginning
        gradient: Gradient {
            GradientStop {
                position: 0
                color: Theme.window
            }
            GradientStop {
                position: 1
                color: Theme.tint(Theme.window, 0)
            }
        }
    }

    Column {
        id: foot

        anchors.horizontalCenter: parent.horizontalCenter
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceXl
        width: root.columnWidth
        spacing: Theme.spaceM

        SuggestionRow {
            width: parent.width
            visible: theConversation.count > 0
            enabled: !theConversation.thinking
            conversation: theConversation
            onAsked: question => root.ask(question)
        }

        AskField {
            id: field

            width: parent.width
            conversation: theConversation
            onAsked: question => root.ask(question)
        }
    }

    onEnabledChanged: root.takeFocus()
    Component.onCompleted: root.takeFocus()

    function ask(question: string) {
        if (theConversation.ask(question))
            field.clear();
        field.forceActiveFocus();
    }

    /// Lets the user type right away, unless the keyboard is in use elsewhere, such as in the sidebar.
    function takeFocus() {
        if (root.enabled && !(Window.activeFocusItem && Window.activeFocusItem.activeFocusOnTab))
            field.forceActiveFocus();
    }
}

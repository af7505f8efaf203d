import QtQuick
import Orlen.App

/// Suggested questions in a quiet line that scrolls sideways.
Item {
    id: root

    required property ConversationModel conversation
    signal asked(question: string)

    implicitHeight: Theme.grown(30) + 6

    ListView {
        id: list

        anchors.fill: parent
        orientation: ListView.Horizontal
        boundsBehavior: Flickable.StopAtBounds
        clip: true
        spacing: Theme.spaceS
        keyNavigationEnabled: false
        cacheBuffer: 4000
        model: root.conversation.suggestions
        Accessible.role: Accessible.List
        Accessible.name: Strings.tryOneOfThese

        delegate: SuggestionPill {
            id: pill

            required property string modelData
            required property int index

            y: 3
            quiet: true
            text: pill.modelData
            onClicked: root.asked(pill.text)
            onActiveFocusChanged: {
                if (pill.activeFocus)
                    list.positionViewAtIndex(pill.index, ListView.Contain);
            }
        }

        WheelHandler {
            acceptedDevices: PointerDevice.Mouse | PointerDevice.TouchPad
            orientation: Qt.Vertical
            property: "contentX"
            rotationScale: Theme.mirrored ? 1 : -1
            onWheel: list.returnToBounds()
        }
    }

    Rectangle {
        anchors.right: parent.right
        width: 40
        height: parent.height
        visible: Theme.mirrored ? !list.atXBeginning : !list.atXEnd
        rotation: Theme.mirrored ? 180 : 0
        gradient: Gradient {
            orientation: Gradient.Horizontal
            GradientStop {
                position: 0
                color: Theme.tint(Theme.window, 0)
            }
            GradientStop {
                position: 1
                color: Theme.window
            }
        }
    }
}

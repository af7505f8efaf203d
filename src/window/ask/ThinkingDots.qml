import QtQuick
import Orlen.App

/// Shows that an answer is being written.
Row {
    id: root

    property bool active: false

    spacing: Theme.spaceS
    Accessible.role: Accessible.StaticText
    Accessible.name: Strings.thinking

    Row {
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spaceXs

        Repeater {
            model: 3

            Rectangle {
                id: dot

                required property int index

                width: 7
                height: 7
                radius: 3.5
                color: Theme.tertiary

                SequentialAnimation on opacity {
                    running: root.active && Theme.moves
                    loops: Animation.Infinite

                    PauseAnimation {
                        duration: dot.index * 160
                    }
                    NumberAnimation {
                        from: 0.35
                        to: 1
                        duration: 320
                    }
                    NumberAnimation {
                        from: 1
                        to: 0.35
                        duration: 320
                    }
                    PauseAnimation {
                        duration: (2 - dot.index) * 160
                    }
                }
            }
        }
    }

    SmallText {
        anchors.verticalCenter: parent.verticalCenter
        text: Strings.thinking
        Accessible.ignored: true
    }
}

import QtQuick
import Orlen.App

/// One step of a scan: pending, running, or done with its duration.
Item {
    id: root

    required property string label
    required property int state
    required property string duration
    required property string amount

    readonly property bool isRunning: root.state === ScanProgressModel.Running
    readonly property bool isDone: root.state === ScanProgressModel.Done

    implicitHeight: Theme.grown(32)
    Accessible.role: Accessible.ListItem
    Accessible.name: root.label
    Accessible.description: root.isDone ? Strings.stepDone(root.duration)
                            : root.isRunning ? Strings.stepRunning : Strings.stepPending

    Item {
        id: mark

        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 18
        height: 18

        Symbol {
            anchors.fill: parent
            visible: root.isDone
            name: "checkmark.circle.fill"
            colour: Theme.safeText
            size: 18
            grows: false
        }

        Rectangle {
            anchors.fill: parent
            anchors.margins: 1
            visible: !root.isDone
            radius: width / 2
            color: "transparent"
            border.width: 1.5
            border.color: root.isRunning ? Theme.accent : Theme.tertiary
            opacity: root.isRunning ? 1 : 0.5
        }

        Rectangle {
            anchors.centerIn: parent
            visible: root.isRunning
            width: 8
            height: 8
            radius: 4
            color: Theme.accent

            SequentialAnimation on scale {
                running: root.isRunning && Theme.moves
                loops: Animation.Infinite

                NumberAnimation {
                    from: 0.7
                    to: 1.1
                    duration: 700
                    easing.type: Easing.InOutSine
                }
                NumberAnimation {
                    from: 1.1
                    to: 0.7
                    duration: 700
                    easing.type: Easing.InOutSine
                }
            }
        }
    }

    BodyText {
        anchors.left: mark.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: time.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        text: root.label
        color: root.isRunning || root.isDone ? Theme.text : Theme.tertiary
        font.weight: root.isRunning ? Font.DemiBold : Font.Medium
        Accessible.ignored: true
    }

    CaptionText {
        id: time

        anchors.right: parent.right
        anchors.verticalCenter: parent.verticalCenter
        text: root.isDone ? root.duration : root.amount
        Accessible.ignored: true
    }
}

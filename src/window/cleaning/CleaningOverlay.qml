import QtQuick
import Orlen.App

/// A running clean-up, then its outcome, which can be undone.
Sheet {
    id: root

    required property Navigation navigation

    readonly property bool isWanted: root.navigation.cleaning || undo.returned
    /// Whether something still moves, here or back.
    readonly property bool isRunning: undo.running || !undo.ended && !cleaning.finished
    readonly property bool isUndoing: undo.running || undo.ended
    readonly property bool isStopping: undo.running ? undo.stopping : cleaning.stopping
    readonly property int moved: root.isUndoing ? undo.restored : cleaning.moved
    readonly property string progressText: undo.running ? undo.progressText : cleaning.progressText
    readonly property string failedText: undo.ended ? undo.failedText : cleaning.failed > 0 ? cleaning.failedText : ""

    title: undo.running ? Strings.restoring
           : undo.ended ? undo.restoredText
           : cleaning.finished ? cleaning.movedText : Strings.movingToTrash
    wantedWidth: Theme.widened(list.isWanted ? 520 : 440)
    wantedHeight: Math.ceil(head.implicitHeight + foot.implicitHeight) + list.taken + 64 + head.spacing
    closable: false

    onIsWantedChanged: root.isWanted ? root.open() : root.close()
    onOpened: content.forceActiveFocus(Qt.PopupFocusReason)
    // The button that started or stopped it is gone.
    onIsRunningChanged: content.forceActiveFocus(Qt.OtherFocusReason)

    CleaningModel {
        id: cleaning
    }

    UndoModel {
        id: undo
    }

    FocusScope {
        id: content

        anchors.fill: parent
        focus: true

        Keys.onEscapePressed: content.dismiss()
        Keys.onReturnPressed: content.dismiss()
        Keys.onEnterPressed: content.dismiss()
        Keys.onPressed: event => {
            event.accepted = event.matches(StandardKey.Undo);
            if (event.accepted && !root.isRunning)
                undo.undo();
        }

        function dismiss() {
            if (!root.isRunning)
                undo.dismiss();
        }

        Column {
            id: head

            x: 32
            y: 32
            width: parent.width - 64
            spacing: Theme.spaceS

            CleaningRing {
                anchors.horizontalCenter: parent.horizontalCenter
                value: undo.running ? undo.fraction : undo.ended ? 1 : cleaning.fraction
                progressText: root.progressText
                symbol: root.isUndoing ? "arrow.uturn.backward" : "trash"
                finished: !root.isRunning
                successful: root.moved > 0
            }

            TitleText {
                objectName: "cleaningTitle"
                width: parent.width
                topPadding: Theme.spaceS
                horizontalAlignment: Text.AlignHCenter
                wrapMode: Text.WordWrap
                text: root.title
            }

            BodyText {
                width: parent.width
                horizontalAlignment: Text.AlignHCenter
                text: root.isRunning ? root.progressText
                                     : Words.facts([cleaning.planTitle, undo.ended ? "" : cleaning.freedText])
                color: Theme.secondary
                font.weight: Font.DemiBold
            }

            BodyText {
                objectName: "cleaningFailed"
                width: parent.width
                visible: !root.isRunning && root.failedText !== ""
                horizontalAlignment: Text.AlignHCenter
                text: root.failedText
                color: Theme.reviewText
                font.weight: Font.Medium
            }
        }

        FailureList {
            id: list

            readonly property bool isWanted: !root.isRunning && list.count > 0
            /// Height that the other texts leave free in the window.
            readonly property real room: (root.parent ? root.parent.height : 720) - 48 - 64 - 3 * head.spacing
                                         - head.implicitHeight - foot.implicitHeight
            readonly property int taken: list.isWanted ? list.height + head.spacing : 0

            objectName: "failureList"
            anchors.top: head.bottom
            anchors.topMargin: head.spacing
            anchors.left: head.left
            anchors.right: head.right
            height: Math.floor(Math.max(80, Math.min(list.contentHeight, 260 * Theme.textScale, list.room)))
            visible: list.isWanted
            failures: undo.ended ? undo.failures : cleaning.failures
            title: undo.ended ? Strings.notPutBack : Strings.notMoved
        }

        Column {
            id: foot

            x: 32
            anchors.top: head.bottom
            anchors.topMargin: head.spacing + list.taken
            width: head.width
            spacing: head.spacing

            SmallText {
                width: parent.width
                visible: root.isRunning
                horizontalAlignment: Text.AlignHCenter
                text: undo.running ? undo.current : cleaning.current
                elide: Text.ElideMiddle
                color: Theme.tertiary
            }

            Paragraph {
                width: parent.width
                topPadding: Theme.spaceXs
                visible: !root.isRunning && !undo.ended
                horizontalAlignment: Text.AlignHCenter
                text: Strings.nothingDeleted
            }

            Paragraph {
                width: parent.width
                visible: !root.isRunning && !(undo.ended ? undo.recorded : cleaning.recorded)
                horizontalAlignment: Text.AlignHCenter
                text: Strings.notRecorded
                color: Theme.reviewText
            }

            Paragraph {
                width: parent.width
                visible: !root.isRunning && !undo.ended && cleaning.stillOn !== ""
                horizontalAlignment: Text.AlignHCenter
                text: cleaning.stillOn
                color: Theme.reviewText
            }

            Item {
                width: 1
                height: 4
            }

            CleaningButtons {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: !root.isRunning
                room: foot.width
                canUndo: undo.available
                canOpenTrash: !undo.ended && cleaning.moved > 0
                onUndoRequested: undo.undo()
                onTrashRequested: undo.openTrash()
                onDoneRequested: content.dismiss()
            }

            AppButton {
                objectName: "cleaningStop"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: root.isRunning
                enabled: !root.isStopping
                text: root.isStopping ? Strings.stopping : Strings.stop
                onClicked: undo.running ? undo.stop() : cleaning.stop()
            }
        }
    }
}

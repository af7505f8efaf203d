import QtQuick
import Orlen.App

/// A running clean-up, then its outcome.
Sheet {
    id: root

    required property Navigation navigation

    title: cleaning.finished ? cleaning.movedText : Strings.movingToTrash
    wantedWidth: Theme.widened(list.isWanted ? 520 : 440)
    wantedHeight: Math.ceil(head.implicitHeight + foot.implicitHeight) + list.taken + 64 + head.spacing
    closable: false

    readonly property bool isWanted: root.navigation.cleaning
    property real swell: cleaning.finished ? 1 : 0

    onIsWantedChanged: root.isWanted ? root.open() : root.close()
    onOpened: content.forceActiveFocus(Qt.PopupFocusReason)

    Spring on swell {
        response: 0.6
        damping: 0.8
    }

    CleaningModel {
        id: cleaning
    }

    FocusScope {
        id: content

        anchors.fill: parent
        focus: true

        Keys.onEscapePressed: if (cleaning.finished) AppModel.cleanUps.dismissCleaning()
        Keys.onReturnPressed: if (cleaning.finished) AppModel.cleanUps.dismissCleaning()
        Keys.onEnterPressed: if (cleaning.finished) AppModel.cleanUps.dismissCleaning()

        Column {
            id: head

            x: 32
            y: 32
            width: parent.width - 64
            spacing: Theme.spaceS

            Item {
                anchors.horizontalCenter: parent.horizontalCenter
                width: 92
                height: 92

                ProgressRing {
                    anchors.fill: parent
                    thickness: 8
                    value: cleaning.fraction
                    tone: cleaning.finished && cleaning.moved > 0 ? Theme.safeBase : Theme.accent
                    track: Theme.track
                    scale: 1 + 0.06 * root.swell * (1 - root.swell) * 4
                    Accessible.role: Accessible.ProgressBar
                    Accessible.name: cleaning.progressText

                    Spring on value {
                        response: 0.6
                        damping: 0.8
                    }
                }

                Symbol {
                    anchors.centerIn: parent
                    name: "trash"
                    size: 30
                    grows: false
                    opacity: 1 - Math.min(1, root.swell * 2)
                }

                Symbol {
                    anchors.centerIn: parent
                    name: cleaning.moved > 0 ? "checkmark" : "exclamationmark.triangle.fill"
                    colour: cleaning.moved > 0 ? Theme.safeText : Theme.reviewText
                    size: 40
                    grows: false
                    scale: root.swell
                    opacity: Math.min(1, Math.max(0, root.swell))
                }
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
                text: cleaning.finished ? Words.facts([cleaning.planTitle, cleaning.freedText])
                                        : cleaning.progressText
                color: Theme.secondary
                font.weight: Font.DemiBold
            }

            BodyText {
                objectName: "cleaningFailed"
                width: parent.width
                visible: cleaning.finished && cleaning.failed > 0
                horizontalAlignment: Text.AlignHCenter
                text: cleaning.failedText
                color: Theme.reviewText
                font.weight: Font.Medium
            }
        }

        FailureList {
            id: list

            readonly property bool isWanted: cleaning.finished && list.count > 0
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
            failures: cleaning.failures
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
                visible: !cleaning.finished
                horizontalAlignment: Text.AlignHCenter
                text: cleaning.current
                elide: Text.ElideMiddle
                color: Theme.tertiary
            }

            Paragraph {
                width: parent.width
                topPadding: Theme.spaceXs
                visible: cleaning.finished
                horizontalAlignment: Text.AlignHCenter
                text: Strings.nothingDeleted
            }

            Paragraph {
                width: parent.width
                visible: cleaning.finished && !cleaning.recorded
                horizontalAlignment: Text.AlignHCenter
                text: Strings.notRecorded
                color: Theme.reviewText
            }

            Paragraph {
                width: parent.width
                visible: cleaning.finished && cleaning.stillOn !== ""
                horizontalAlignment: Text.AlignHCenter
                text: cleaning.stillOn
                color: Theme.reviewText
            }

            Item {
                width: 1
                height: 4
            }

            AppButton {
                objectName: "cleaningDone"
                anchors.horizontalCenter: parent.horizontalCenter
                visible: cleaning.finished
                primary: true
                text: Strings.done
                onClicked: AppModel.cleanUps.dismissCleaning()
            }

            AppButton {
                anchors.horizontalCenter: parent.horizontalCenter
                visible: !cleaning.finished
                enabled: !cleaning.stopping
                text: cleaning.stopping ? Strings.stopping : Strings.stop
                onClicked: cleaning.stop()
            }
        }
    }
}

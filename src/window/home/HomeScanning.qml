import QtQuick
import Orlen.App

/// Smart Scan during a scan: its steps, the current file and the cancel button.
Item {
    id: root

    /// Whether a sandbox decides what the program may see.
    required property bool sandboxed

    /// Where the storage ring goes.
    readonly property alias ringSlot: slot
    readonly property alias mainButton: cancel

    ScanProgressModel {
        id: progress
    }

    ScrollArea {
        id: flickable

        anchors.fill: parent
        contentHeight: page.height

        Item {
            id: page

            readonly property real inner: Math.min(width - 2 * Theme.pageMargin, 820)

            width: flickable.width
            height: Math.max(flickable.height, panel.height + 2 * 24)

            Column {
                id: side

                anchors.left: parent.left
                anchors.leftMargin: Math.round((page.width - page.inner) / 2)
                y: Math.round((flickable.height - height) / 2)
                spacing: Theme.spaceXl

                Item {
                    id: slot

                    width: Math.round(Math.max(128, Math.min(232, page.inner * 0.3)))
                    height: width

                    // Around the ring that shows the storage.
                    ProgressRing {
                        objectName: "scanShare"
                        anchors.centerIn: parent
                        width: parent.width + 2 * (Theme.spaceS + thickness)
                        height: width
                        thickness: 4
                        value: progress.cancelling ? 0 : progress.share
                        tone: Theme.accent
                        track: Theme.track
                        Accessible.role: Accessible.ProgressBar
                        Accessible.name: Strings.scanning

                        Ease on value {
                            duration: Theme.screenDuration
                        }
                    }

                    Column {
                        anchors.centerIn: parent
                        width: parent.width * 0.7
                        Accessible.role: Accessible.StaticText
                        Accessible.name: Strings.filesExamined(progress.fileCount)

                        FittingText {
                            objectName: "filesExamined"
                            width: parent.width
                            text: progress.files
                            most: Theme.titleSize + 6
                            share: 0.2
                            font.weight: Font.Bold
                            font.letterSpacing: -0.5
                            Accessible.ignored: true
                        }

                        FittingText {
                            width: parent.width
                            text: Strings.filesExaminedBelow(progress.fileCount)
                            most: Theme.smallSize
                            share: 0.12
                            color: Theme.secondary
                            Accessible.ignored: true
                        }
                    }
                }

                AppButton {
                    id: cancel

                    anchors.horizontalCenter: parent.horizontalCenter
                    objectName: "cancelScan"
                    enabled: !progress.cancelling
                    text: Strings.cancel
                    onClicked: progress.cancel()
                }
            }

            Column {
                id: panel

                anchors.left: side.right
                anchors.leftMargin: Math.round(page.inner * 0.07)
                width: Math.round(page.inner * 0.93 - slot.width)
                y: Math.max(24, Math.round((page.height - height) / 2))
                spacing: Theme.spaceM

                TitleText {
                    width: parent.width
                    text: progress.cancelling ? Strings.cancellingScan : Strings.scanning
                    wrapMode: Text.WordWrap
                }

                Card {
                    width: parent.width
                    height: steps.height + 20

                    Column {
                        id: steps

                        x: 16
                        y: 10
                        width: parent.width - 32
                        opacity: progress.cancelling ? 0.5 : 1
                        Accessible.role: Accessible.List
                        Accessible.name: Strings.scanning

                        Repeater {
                            model: progress

                            ScanStepRow {
                                width: steps.width
                            }
                        }
                    }
                }

                CaptionText {
                    width: parent.width
                    text: progress.cancelling ? Strings.nothingChanged : progress.current
                    elide: Text.ElideMiddle
                }

                Note {
                    width: parent.width
                    visible: !AppModel.results.fdaGranted
                    text: root.sandboxed ? Strings.scanningInSandbox : Strings.scanningWithoutAccess
                }
            }
        }
    }
}

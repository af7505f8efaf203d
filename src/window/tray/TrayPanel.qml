import QtQuick
import QtQuick.Window
import Orlen.App

/// The tray item's small window: free space at a glance, and a button for the main window.
Window {
    id: root

    signal openRequested
    signal quitRequested

    width: Theme.widened(320)
    height: content.implicitHeight + 2 * Theme.cardMargin
    flags: Qt.Tool | Qt.FramelessWindowHint | Qt.WindowStaysOnTopHint
    title: Strings.appName
    color: "transparent"
    LayoutMirroring.enabled: Theme.mirrored
    LayoutMirroring.childrenInherit: true

    // Closes like a menu on a click anywhere else.
    onActiveChanged: {
        if (!root.active)
            root.hide();
    }

    StorageModel {
        id: storage
    }

    TrayModel {
        id: tray
    }

    Rectangle {
        anchors.fill: parent
        radius: Theme.cardRadius
        color: Theme.card
        border.width: 1
        border.color: Theme.stroke
        focus: true
        Keys.onEscapePressed: root.hide()

        Column {
            id: content

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.top: parent.top
            anchors.margins: Theme.cardMargin
            spacing: Theme.spaceL

            HeadlineText {
                width: parent.width
                text: Strings.appName
            }

            Column {
                width: parent.width
                spacing: Theme.spaceS

                BodyText {
                    width: parent.width
                    visible: !storage.ready
                    text: Strings.lookingAtStorage
                    color: Theme.secondary
                }

                Item {
                    width: parent.width
                    height: freeSpace.implicitHeight
                    visible: storage.ready
                    Accessible.role: Accessible.StaticText
                    Accessible.name: Strings.spoken([freeSpace.text, ofTotal.text])

                    TitleText {
                        id: freeSpace

                        anchors.left: parent.left
                        text: storage.freeText
                        Accessible.ignored: true
                    }

                    SmallText {
                        id: ofTotal

                        anchors.left: freeSpace.right
                        anchors.leftMargin: Theme.spaceS
                        anchors.right: parent.right
                        anchors.baseline: freeSpace.baseline
                        text: Strings.freeOf(storage.totalText)
                        Accessible.ignored: true
                    }
                }

                ProgressBar {
                    width: parent.width
                    implicitHeight: 6
                    value: storage.usedFraction
                    Accessible.name: Strings.usedSpace
                }
            }

            Note {
                width: parent.width
                visible: tray.lastScanText !== ""
                text: tray.lastScanText
                symbol: "sparkles"
                ink: Theme.text
            }

            Divider {
                width: parent.width
            }

            CaptionText {
                width: parent.width
                text: Strings.trayNote
                wrapMode: Text.WordWrap
                color: Theme.secondary
            }

            Row {
                anchors.right: parent.right
                spacing: Theme.spaceS

                AppButton {
                    text: tray.quitLabel
                    onClicked: root.quitRequested()
                }

                AppButton {
                    objectName: "trayOpen"
                    text: tray.openLabel
                    primary: true
                    focus: true
                    onClicked: root.openRequested()
                }
            }
        }
    }
}

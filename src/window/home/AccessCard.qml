import QtQuick
import Orlen.App

/// Explains Full Disk Access and how to grant it; the user can go on without it.
Card {
    id: root

    required property DiskAccessModel access
    signal finished
    /// Emitted when the keyboard reaches the continue button.
    signal reached

    property bool isCommandShown: false
    readonly property bool besides: root.width > 640 * Theme.textScale
    readonly property real contentHeight: root.besides ? Math.max(words.height, buttons.height)
                                                       : words.height + Theme.spaceL + buttons.height

    implicitHeight: root.contentHeight + 2 * Theme.cardMargin

    Column {
        id: words

        x: Theme.cardMargin
        y: root.besides ? Math.round((root.height - height) / 2) : Theme.cardMargin
        width: root.width - 2 * Theme.cardMargin - (root.besides ? buttons.width + 32 : 0)
        spacing: Theme.spaceXs

        HeadlineText {
            width: parent.width
            text: Strings.accessTitle
            wrapMode: Text.WordWrap
        }

        Paragraph {
            width: parent.width
            text: Strings.accessBody
        }

        Note {
            width: parent.width
            topPadding: Theme.spaceXs
            visible: root.access.granted
            symbol: "checkmark.circle.fill"
            ink: Theme.safeText
            text: Strings.accessOn
        }

        Row {
            width: parent.width
            visible: root.isCommandShown
            spacing: Theme.spaceS

            Rectangle {
                anchors.verticalCenter: parent.verticalCenter
                width: Math.min(parent.width - copy.width - 8, command.implicitWidth + 20)
                height: command.height + 12
                radius: 6
                color: Theme.inset

                CaptionText {
                    id: command

                    x: 10
                    anchors.verticalCenter: parent.verticalCenter
                    width: parent.width - 20
                    text: root.access.command
                    wrapMode: Text.WrapAnywhere
                    color: Theme.text
                    font.family: "monospace"
                }
            }

            IconButton {
                id: copy

                anchors.verticalCenter: parent.verticalCenter
                symbol: "copy"
                text: Strings.copy
                onClicked: root.access.copyCommand()
            }
        }

        Paragraph {
            width: parent.width
            visible: !root.access.granted
            text: Strings.accessHint
            color: Theme.tertiary
            font.pixelSize: Theme.captionSize
        }
    }

    Column {
        id: buttons

        anchors.right: root.besides ? parent.right : undefined
        anchors.rightMargin: Theme.cardMargin
        x: Theme.cardMargin
        y: root.besides ? Math.round((root.height - height) / 2) : root.height - height - Theme.cardMargin
        spacing: Theme.spaceS

        AppButton {
            id: settings

            width: go.width
            visible: !root.access.granted && root.access.command !== ""
            text: Strings.openPrivacySettings
            onClicked: root.isCommandShown = true
        }

        AppButton {
            id: go

            objectName: "continue"
            width: Math.max(implicitWidth, settings.visible ? settings.implicitWidth : 0, 168)
            primary: true
            large: true
            text: root.access.granted ? Strings.continueOn : Strings.continueWithoutIt
            onClicked: root.finished()
            onActiveFocusChanged: {
                if (go.activeFocus)
                    root.reached();
            }
        }
    }
}

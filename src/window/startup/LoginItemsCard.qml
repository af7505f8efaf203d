import QtQuick
import Orlen.App

/// What the desktop opens at login, listed on request.
ColumnCard {
    id: root

    required property LoginItemModel items

    spacing: Theme.spaceM

    Column {
        width: parent.width
        spacing: Theme.spaceXs

        BodyText {
            width: parent.width
            text: Strings.loginItems
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: Strings.loginItems
        }

        Paragraph {
            width: parent.width
            text: Strings.loginItemsLead
            font.pixelSize: Theme.captionSize
        }
    }

    Flow {
        width: parent.width
        spacing: Theme.spaceS

        AppButton {
            text: Strings.showLoginItems
            onClicked: root.items.ask()
        }

        AppButton {
            text: Strings.openLoginItemsSettings
            onClicked: root.items.openSettings()
        }
    }

    Note {
        width: parent.width
        visible: root.items.names === LoginItemModel.Unreadable
        text: Strings.loginItemsFailed
        symbol: "exclamationmark.triangle.fill"
        ink: Theme.reviewText
    }

    Note {
        width: parent.width
        visible: root.items.names === LoginItemModel.Known && root.items.count === 0
        text: Strings.noLoginItems
    }

    Rectangle {
        width: parent.width
        height: names.height + 16
        visible: root.items.count > 0
        radius: Theme.controlRadius
        color: Theme.inset

        Column {
            id: names

            x: 14
            y: 8
            width: parent.width - 28

            Repeater {
                model: root.items

                SmallText {
                    required property string name

                    width: names.width
                    height: Theme.grown(28)
                    verticalAlignment: Text.AlignVCenter
                    text: name
                    color: Theme.text
                }
            }
        }
    }
}

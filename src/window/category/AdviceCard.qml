import QtQuick
import Orlen.App

/// One piece of advice, with the command to copy.
Card {
    id: root

    required property string title
    required property string place
    required property string size
    required property string text
    required property string command
    signal copyRequested
    signal reached

    implicitHeight: content.height + 2 * Theme.spaceL
    Accessible.role: Accessible.ListItem
    Accessible.name: Strings.spokenText(Strings.spoken([root.title, root.size]), root.text)

    Column {
        id: content

        x: Theme.spaceL
        y: Theme.spaceL
        width: root.width - 2 * x
        spacing: Theme.spaceS

        Item {
            width: parent.width
            height: title.height

            BodyText {
                id: title

                anchors.left: parent.left
                width: Math.min(implicitWidth, parent.width - amount.width - Theme.spaceM)
                text: root.title
                font.weight: Font.DemiBold
                Accessible.ignored: true
            }

            CaptionText {
                anchors.left: title.right
                anchors.leftMargin: Theme.spaceS
                anchors.right: amount.left
                anchors.rightMargin: Theme.spaceM
                anchors.baseline: title.baseline
                visible: width > 40
                text: root.place
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }

            SmallText {
                id: amount

                anchors.right: parent.right
                anchors.baseline: title.baseline
                text: root.size
                color: Theme.text
                font.weight: Font.Medium
                Accessible.ignored: true
            }
        }

        Paragraph {
            width: parent.width
            text: root.text
            color: Theme.secondary
            Accessible.ignored: true
        }

        CommandBox {
            width: parent.width
            visible: root.command !== ""
            command: root.command
            onCopyRequested: root.copyRequested()
            onReached: root.reached()
        }
    }
}

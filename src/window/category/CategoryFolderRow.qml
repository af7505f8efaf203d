import QtQuick
import Orlen.App

/// One folder of a category: what is in it, and its part of the whole.
Pressable {
    id: root

    required property string name
    required property string place
    required property string items
    required property string size
    required property real share
    required property string shareText
    required property bool isSeen
    required property bool isInHome
    required property color tone
    signal menuRequested(x: real, y: real)
    /// The keyboard asks for the menu.
    signal menuKeyPressed

    implicitHeight: Math.max(Theme.grown(52), texts.height + 16)
    enabled: root.isSeen
    fill: root.isSeen && (root.hovered || root.down) ? Theme.hover : Theme.clear
    ringGap: 0
    text: Strings.spoken([root.name, root.size, root.shareText])
    Accessible.description: root.isInHome ? Strings.opensInDiskMap : root.isSeen ? Strings.reveal : ""

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier;
        if (event.accepted)
            root.menuKeyPressed();
    }

    contentItem: Item {
        Symbol {
            id: icon

            anchors.left: parent.left
            anchors.leftMargin: Theme.spaceXs
            anchors.verticalCenter: parent.verticalCenter
            name: root.isSeen ? "folder.fill" : "lock.fill"
            colour: root.isSeen ? root.tone : Theme.tertiary
        }

        Column {
            id: texts

            anchors.left: icon.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: bar.left
            anchors.rightMargin: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter
            spacing: 2

            Item {
                width: parent.width
                height: name.height

                BodyText {
                    id: name

                    anchors.left: parent.left
                    width: Math.min(implicitWidth, parent.width)
                    text: root.name
                    wrapMode: Text.Wrap
                    maximumLineCount: 3
                    font.weight: Font.Medium
                    Accessible.ignored: true
                }

                CaptionText {
                    anchors.left: name.right
                    anchors.leftMargin: Theme.spaceS
                    anchors.right: parent.right
                    anchors.baseline: name.baseline
                    visible: width > 40
                    text: root.place
                    elide: Text.ElideMiddle
                    Accessible.ignored: true
                }
            }

            CaptionText {
                width: parent.width
                visible: text !== ""
                text: root.items
                wrapMode: Text.WordWrap
                maximumLineCount: 4
                color: Theme.secondary
                Accessible.ignored: true
            }
        }

        ProgressBar {
            id: bar

            anchors.right: percent.left
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(140, root.width * 0.18)
            value: root.share
            tone: root.tone
            Accessible.ignored: true
        }

        CaptionText {
            id: percent

            anchors.right: amount.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.grown(48)
            horizontalAlignment: Text.AlignRight
            text: root.shareText
            fontSizeMode: Text.HorizontalFit
            minimumPixelSize: 8
            Accessible.ignored: true
        }

        SmallText {
            id: amount

            anchors.right: action.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.grown(104)
            horizontalAlignment: Text.AlignRight
            text: root.size
            color: Theme.text
            Accessible.ignored: true
        }

        Symbol {
            id: action

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            opacity: root.isSeen ? 1 : 0
            name: root.isInHome ? "chevron.right" : "reveal"
            colour: Theme.tertiary
            size: 13
        }

        MouseArea {
            anchors.fill: parent
            acceptedButtons: Qt.RightButton
            onClicked: mouse => root.menuRequested(mouse.x, mouse.y)
        }
    }
}

import QtQuick
import Orlen.App

/// A folder that grew, with what it grew by. Opens in the disk map.
Pressable {
    id: root

    required property string name
    required property string place
    required property string growth
    required property real extent
    required property string code
    readonly property bool opens: root.code !== ""
    /// A right click at this place asks for the menu of the row.
    signal menuRequested(x: real, y: real)
    signal menuKeyPressed

    implicitHeight: Math.max(Theme.grown(48), texts.height + 12)
    enabled: root.opens
    fill: root.opens && (root.hovered || root.down) ? Theme.hover : Theme.clear
    ringGap: 0
    text: Strings.spoken([root.name, root.growth, root.place])
    Accessible.description: root.opens ? Strings.opensInDiskMap : ""

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Menu || event.key === Qt.Key_F10 && event.modifiers & Qt.ShiftModifier;
        if (event.accepted)
            root.menuKeyPressed();
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: event => root.menuRequested(event.position.x, event.position.y)
    }

    contentItem: Item {
        Column {
            id: texts

            anchors.left: parent.left
            anchors.leftMargin: Theme.cardMargin
            anchors.right: bar.left
            anchors.rightMargin: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter

            BodyText {
                width: parent.width
                text: root.name
                elide: Text.ElideMiddle
                font.weight: Font.Medium
                Accessible.ignored: true
            }

            CaptionText {
                width: parent.width
                text: root.place
                elide: Text.ElideMiddle
                Accessible.ignored: true
            }
        }

        ProgressBar {
            id: bar

            anchors.right: amount.left
            anchors.rightMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(180, root.width * 0.2)
            height: 6
            color: Theme.inset
            tone: Theme.accent
            value: root.extent
            Accessible.ignored: true
        }

        SmallText {
            id: amount

            anchors.right: action.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.grown(96)
            horizontalAlignment: Text.AlignRight
            text: root.growth
            color: Theme.text
            Accessible.ignored: true
        }

        Symbol {
            id: action

            anchors.right: parent.right
            anchors.rightMargin: Theme.cardMargin
            anchors.verticalCenter: parent.verticalCenter
            opacity: root.opens ? 1 : 0
            name: "chevron.right"
            colour: Theme.tertiary
            size: 13
        }
    }
}

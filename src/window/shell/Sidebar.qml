import QtQuick
import Orlen.App

/// The list of screens, with the free space below.
Rectangle {
    id: root

    required property int currentScreen
    required property string freeSentence
    required property real usedFraction
    signal selected(screen: int)

    /// From the edge to the rows' badges.
    readonly property int inset: Theme.spaceM + Theme.spaceS

    color: Theme.sidebar

    ScrollList {
        id: list

        anchors.fill: parent
        anchors.topMargin: Theme.spaceM
        anchors.bottomMargin: footer.height + 36
        currentIndex: root.currentScreen
        activeFocusOnTab: true
        keyNavigationEnabled: false
        spacing: 2
        model: Screens
        Accessible.name: Strings.screens

        Keys.onUpPressed: root.selected(Math.max(0, root.currentScreen - 1))
        Keys.onDownPressed: root.selected(Math.min(list.count - 1, root.currentScreen + 1))

        section.property: "section"
        section.delegate: CaptionText {
            required property string section

            height: Theme.widened(34)
            width: ListView.view.width
            leftPadding: root.inset
            rightPadding: root.inset
            bottomPadding: Theme.spaceS
            verticalAlignment: Text.AlignBottom
            text: section
            font.weight: Font.DemiBold
        }

        delegate: SidebarRow {
            x: 12
            width: ListView.view.width - 24
            isCurrent: root.currentScreen === screen
            focusPolicy: Qt.NoFocus
            ringed: isCurrent && list.activeFocus
            onClicked: root.selected(screen)
        }
    }

    Column {
        id: footer

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.bottom: parent.bottom
        anchors.margins: root.inset
        spacing: Theme.spaceS

        CaptionText {
            width: parent.width
            text: root.freeSentence
            color: Theme.secondary
            font.weight: Font.DemiBold
        }

        ProgressBar {
            width: parent.width
            value: root.usedFraction
            Accessible.name: Strings.usedSpace
        }
    }

    Divider {
        anchors.right: parent.right
        height: parent.height
    }
}

import QtQuick
import Orlen.App

/// Leftovers with a check box each, below a strip that names them and checks all.
FocusScope {
    id: root

    required property LeftoverListModel leftovers
    readonly property real stripHeight: strip.height
    /// Of all rows, with the strip and the margins.
    readonly property real contentHeight: strip.height + list.contentHeight + 28

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    Rectangle {
        id: strip

        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: parent.top
        height: Math.max(Theme.grown(44), heading.height + 16)
        color: Theme.inset

        CheckMark {
            id: all

            objectName: "leftoversAll"
            anchors.left: parent.left
            anchors.leftMargin: 20
            anchors.verticalCenter: parent.verticalCenter
            visible: root.leftovers.count > 0
            checkState: root.leftovers.checkState
            nextCheckState: () => root.leftovers.checkState === Qt.Checked ? Qt.Unchecked : Qt.Checked
            text: heading.text
            Accessible.name: heading.text
            onClicked: root.leftovers.toggleAll()
        }

        SmallText {
            id: heading

            anchors.left: all.visible ? all.right : parent.left
            anchors.leftMargin: all.visible ? 10 : 24
            anchors.right: figures.left
            anchors.rightMargin: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter
            text: root.leftovers.heading
            wrapMode: Text.Wrap
            color: Theme.text
            font.weight: Font.DemiBold
        }

        CaptionText {
            id: figures

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceXl
            anchors.verticalCenter: parent.verticalCenter
            visible: root.leftovers.count > 0
            text: root.leftovers.chosenText
            color: Theme.secondary
        }
    }

    KeyedList {
        id: list

        focus: true
        objectName: "leftoverList"
        anchors.left: parent.left
        anchors.right: parent.right
        anchors.top: strip.bottom
        anchors.bottom: parent.bottom
        anchors.leftMargin: Theme.spaceM
        anchors.rightMargin: 2
        topMargin: Theme.spaceS
        bottomMargin: Theme.spaceS
        reuseItems: true
        model: root.leftovers
        Accessible.name: heading.text

        onCountChanged: list.land()
        onMenuRequested: menu.openBelow(root.leftovers, list.currentIndex, list.currentItem)
        Keys.onSpacePressed: root.leftovers.toggle(list.currentIndex)
        Keys.onReturnPressed: root.leftovers.review()
        Keys.onEnterPressed: root.leftovers.review()

        delegate: LeftoverRow {
            id: row

            required property int index

            x: Theme.mirrored ? 10 : 0
            width: ListView.view.width - 10
            ringed: row.isCurrent && list.showsFocus
            isCurrent: ListView.isCurrentItem && list.activeFocus
            onRevealRequested: root.leftovers.reveal(row.index)
            onMenuRequested: (x, y) => {
                list.currentIndex = row.index;
                list.forceActiveFocus(Qt.MouseFocusReason);
                menu.openAt(root.leftovers, row.index, row, x, y);
            }
            onToggled: {
                list.currentIndex = row.index;
                root.leftovers.toggle(row.index);
            }
        }
    }
}

import QtQuick
import Orlen.App

/// What a clean-up could not move, grouped by reason with a remedy for each.
KeyedList {
    id: root

    required property FailureListModel failures
    required property string title

    model: root.failures
    currentIndex: 0
    cacheBuffer: 400
    Accessible.name: root.title

    onMenuRequested: menu.openBelow(root.failures, root.currentIndex, root.currentItem)

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    Rectangle {
        anchors.fill: parent
        z: -1
        radius: Theme.controlRadius
        color: Theme.inset

        FocusRing {
            shown: root.showsFocus
        }
    }

    delegate: Column {
        id: row

        required property int index
        required property string name
        required property string folder
        required property string reason
        required property bool startsReason
        required property string remedy
        readonly property string facts: Strings.spoken([row.name, row.folder, row.reason])

        width: ListView.view ? ListView.view.width : 0
        leftPadding: Theme.spaceL
        rightPadding: Theme.spaceL
        topPadding: row.startsReason ? 12 : 0
        bottomPadding: row.index === root.count - 1 ? 12 : 6
        Accessible.role: Accessible.ListItem
        Accessible.name: row.startsReason && row.remedy !== "" ? Strings.spokenText(row.facts, row.remedy) : row.facts

        TapHandler {
            acceptedButtons: Qt.RightButton
            onTapped: event => {
                root.currentIndex = row.index;
                root.forceActiveFocus(Qt.MouseFocusReason);
                menu.openAt(root.failures, row.index, row, event.position.x, event.position.y);
            }
        }

        SmallText {
            objectName: "failureReason"
            width: row.width - 32
            bottomPadding: row.remedy === "" ? 6 : 0
            visible: row.startsReason
            text: row.reason.charAt(0).toUpperCase() + row.reason.slice(1)
            wrapMode: Text.WordWrap
            color: Theme.reviewText
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        CaptionText {
            objectName: "failureRemedy"
            width: row.width - 32
            bottomPadding: Theme.spaceS
            visible: row.startsReason && row.remedy !== ""
            text: row.remedy
            wrapMode: Text.WordWrap
            color: Theme.secondary
            Accessible.ignored: true
        }

        SmallText {
            width: row.width - 32
            text: row.name
            elide: Text.ElideMiddle
            color: Theme.text
            Accessible.ignored: true
        }

        CaptionText {
            width: row.width - 32
            text: row.folder
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }
}

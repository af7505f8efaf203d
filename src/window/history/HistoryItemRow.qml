import QtQuick
import Orlen.App

/// One item of a past clean-up.
ListRow {
    id: root

    required property string name
    required property string folder
    required property string size
    required property int status
    required property string statusText
    required property string remedy
    required property bool restorable

    property bool isNarrow: false

    readonly property bool isRestored: root.status === RecordItemsModel.Restored
    readonly property color statusInk: root.isRestored ? Theme.safeText
                                       : root.isOff ? Theme.reviewText : Theme.secondary
    readonly property bool isOff: root.status === RecordItemsModel.Gone || root.status === RecordItemsModel.NotRestored
    readonly property string facts: Strings.spoken([root.name, root.folder, root.size, root.statusText])

    /// Restores the item, or shows one that is back in the file manager.
    signal activated

    fill: root.hovered ? Theme.inset : "transparent"
    Accessible.name: root.remedy === "" ? root.facts : Strings.spokenText(root.facts, root.remedy)
    Accessible.onPressAction: root.activated()

    ToolTipBubble {
        shown: root.hovered && root.remedy !== ""
        text: root.remedy
    }

    RowTexts {
        anchors.left: parent.left
        anchors.leftMargin: Theme.spaceM
        anchors.right: trailing.left
        anchors.rightMargin: Theme.spaceL
        anchors.verticalCenter: parent.verticalCenter
        name: root.name
        place: root.folder
        note: root.isNarrow ? root.statusText : ""
        noteInk: root.statusInk
    }

    Row {
        id: trailing

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        spacing: Theme.spaceS

        CaptionText {
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, root.width * 0.45)
            visible: !root.isNarrow
            text: root.statusText
            elide: Text.ElideRight
            color: root.statusInk
            Accessible.ignored: true
        }

        SmallText {
            anchors.verticalCenter: parent.verticalCenter
            width: Theme.grown(78)
            horizontalAlignment: Text.AlignRight
            text: root.size
            color: Theme.text
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Item {
            width: action.width
            height: action.height

            IconButton {
                id: action

                objectName: "itemAction"
                side: 32
                visible: root.isRestored || root.restorable
                symbol: root.isRestored ? "reveal" : "arrow.uturn.backward"
                text: root.isRestored ? Strings.reveal : Strings.restore
                focusPolicy: Qt.NoFocus
                Accessible.name: root.isRestored ? action.text : Strings.restoreItem(root.name)
                onClicked: root.activated()
            }
        }
    }
}

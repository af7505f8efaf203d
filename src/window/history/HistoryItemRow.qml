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

    property bool isNarrow: false

    readonly property bool isRestored: root.status === RecordItemsModel.Restored
    readonly property color statusInk: root.isRestored ? Theme.safeText
                                       : root.status === RecordItemsModel.Gone ? Theme.reviewText : Theme.secondary

    signal revealRequested

    fill: root.hovered ? Theme.inset : "transparent"
    Accessible.name: Strings.spoken([root.name, root.folder, root.size, root.statusText])

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
            visible: !root.isNarrow
            text: root.statusText
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
            width: reveal.width
            height: reveal.height

            IconButton {
                id: reveal

                side: 32
                visible: root.isRestored
                symbol: "reveal"
                text: Strings.reveal
                focusPolicy: Qt.NoFocus
                onClicked: root.revealRequested()
            }
        }
    }
}

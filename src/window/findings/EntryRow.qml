import QtQuick
import Orlen.App

/// One file or folder: check box, thumbnail, name, folder, note, rating, size and date, with actions shown
/// while it is hovered or current.
ListRow {
    id: root

    required property string name
    required property string folder
    required property string size
    required property string date
    required property string note
    required property ratingValue rating
    required property string symbol
    required property string thumbnail
    property int checkState: Qt.Unchecked
    property bool checkable: true
    property bool isCurrent: false
    /// Indent for rows below a heading.
    property int indent: 0
    signal toggled
    signal pressed
    signal previewRequested
    signal revealRequested

    /// Whether there is no room for the date beside the name.
    readonly property bool isNarrow: root.width < 560 * Theme.textScale

    implicitHeight: texts.height + 16
    Accessible.role: root.checkable ? Accessible.CheckBox : Accessible.ListItem
    Accessible.name: Strings.spoken([root.name, root.size, root.rating.label, root.note, root.folder])
    Accessible.checkable: root.checkable
    Accessible.checked: root.checkState === Qt.Checked
    Accessible.selected: root.isCurrent
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()
    fill: root.isCurrent ? Theme.accentSoft : root.hovered ? Theme.inset : "transparent"
    sideGap: 12
    topGap: 1
    bottomGap: 1

    TapHandler {
        onPressedChanged: if (pressed) root.pressed()
        onDoubleTapped: root.previewRequested()
    }

    CheckMark {
        id: check

        objectName: "check"
        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.leftMargin: 20 + root.indent
        visible: root.checkable
        checkState: root.checkState
        nextCheckState: () => check.checkState
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: root.toggled()
    }

    FileThumb {
        id: picture

        anchors.verticalCenter: parent.verticalCenter
        anchors.left: parent.left
        anchors.leftMargin: root.indent + (root.checkable ? 20 + check.width + 8 : 24)
        symbol: root.symbol
        thumbnail: root.thumbnail
    }

    RowTexts {
        id: texts

        anchors.left: picture.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: actions.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        name: root.name
        place: root.folder
        note: root.note
    }

    Row {
        id: actions

        anchors.right: chip.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        opacity: root.hovered || root.isCurrent ? 1 : 0

        IconButton {
            objectName: "look"
            side: 32
            focusPolicy: Qt.NoFocus
            symbol: "eye"
            text: Strings.preview
            onClicked: root.previewRequested()
        }

        IconButton {
            side: 32
            focusPolicy: Qt.NoFocus
            symbol: "reveal"
            text: Strings.reveal
            onClicked: root.revealRequested()
        }
    }

    Item {
        id: chip

        anchors.right: figures.left
        anchors.rightMargin: Theme.spaceS
        anchors.verticalCenter: parent.verticalCenter
        width: Math.max(Theme.grown(82), mark.width)
        height: 22

        RatingChip {
            id: mark

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            rating: root.rating
            Accessible.ignored: true
        }
    }

    Column {
        id: figures

        anchors.right: parent.right
        anchors.rightMargin: Theme.spaceXl
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.grown(root.isNarrow ? 84 : 136)
        spacing: 2

        BodyText {
            width: parent.width
            horizontalAlignment: Text.AlignRight
            text: root.size
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        CaptionText {
            width: parent.width
            visible: root.date !== "" && !root.isNarrow
            horizontalAlignment: Text.AlignRight
            text: root.date
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            Accessible.ignored: true
        }
    }
}

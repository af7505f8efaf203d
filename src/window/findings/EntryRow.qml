import QtQuick
import Orlen.App

/// One file or folder of a list: check box, picture, name and place, note, advice, size and date, and what can
/// be done with it while the pointer or the keyboard is on it.
Item {
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
    /// Whether the keyboard is on this row.
    property bool showsFocus: false
    /// Room at the left for rows that belong to a heading.
    property int indent: 0
    signal toggled
    signal pressed
    signal previewRequested
    signal revealRequested

    Accessible.role: root.checkable ? Accessible.CheckBox : Accessible.ListItem
    Accessible.name: root.name + ", " + root.size + ", " + root.rating.label + ", " + root.note + ", " + root.folder
    Accessible.checkable: root.checkable
    Accessible.checked: root.checkState === Qt.Checked
    Accessible.selected: root.isCurrent
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()

    Rectangle {
        anchors.fill: parent
        anchors.leftMargin: 12
        anchors.rightMargin: 12
        anchors.topMargin: 1
        anchors.bottomMargin: 1
        radius: Theme.controlRadius
        color: root.isCurrent ? Theme.accentSoft : hover.hovered ? Theme.inset : "transparent"

        FocusRing {
            shown: root.showsFocus
            gap: 0
        }
    }

    HoverHandler {
        id: hover
    }

    TapHandler {
        onPressedChanged: if (pressed) root.pressed()
        onDoubleTapped: root.previewRequested()
    }

    CheckMark {
        id: check

        objectName: "check"
        anchors.verticalCenter: parent.verticalCenter
        x: 20 + root.indent
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
        x: root.checkable ? check.x + check.width + 8 : 24 + root.indent
        symbol: root.symbol
        thumbnail: root.thumbnail
    }

    Column {
        anchors.left: picture.right
        anchors.leftMargin: 12
        anchors.right: actions.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        spacing: 2

        Text {
            width: parent.width
            text: root.name
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            color: Theme.text
            font.pixelSize: Theme.bodySize
            font.weight: Font.Medium
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            text: root.folder
            textFormat: Text.PlainText
            elide: Text.ElideMiddle
            color: Theme.tertiary
            font.pixelSize: Theme.captionSize
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            visible: root.note !== ""
            text: root.note
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: Theme.secondary
            font.pixelSize: Theme.captionSize
            Accessible.ignored: true
        }
    }

    Row {
        id: actions

        readonly property bool isWanted: hover.hovered || root.isCurrent

        anchors.right: chip.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter

        IconButton {
            objectName: "look"
            width: 32
            height: 32
            opacity: actions.isWanted ? 1 : 0
            focusPolicy: Qt.NoFocus
            symbol: "eye"
            text: Strings.preview
            onClicked: root.previewRequested()
        }

        IconButton {
            width: 32
            height: 32
            opacity: actions.isWanted ? 1 : 0
            focusPolicy: Qt.NoFocus
            symbol: "reveal"
            text: Strings.reveal
            onClicked: root.revealRequested()
        }
    }

    Item {
        id: chip

        anchors.right: figures.left
        anchors.rightMargin: 8
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(82 * Theme.textScale)
        height: 22

        RatingChip {
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            rating: root.rating
            Accessible.ignored: true
        }
    }

    Column {
        id: figures

        anchors.right: parent.right
        anchors.rightMargin: 24
        anchors.verticalCenter: parent.verticalCenter
        width: Math.round(136 * Theme.textScale)
        spacing: 2

        Text {
            width: parent.width
            horizontalAlignment: Text.AlignRight
            text: root.size
            textFormat: Text.PlainText
            color: Theme.text
            font.pixelSize: Theme.bodySize
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            visible: root.date !== ""
            horizontalAlignment: Text.AlignRight
            text: root.date
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: Theme.tertiary
            font.pixelSize: Theme.captionSize
            Accessible.ignored: true
        }
    }
}

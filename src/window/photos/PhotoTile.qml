import QtQuick
import Orlen.App

/// One photo with its check box. Photos of a set share a background, the kept one first.
Item {
    id: root

    required property string name
    required property string details
    required property string size
    required property string source
    required property bool selected
    required property bool kept
    required property bool joinsPrevious
    required property bool joinsNext

    property bool ringed: false
    /// Colour behind the tile.
    property color ground: Theme.card

    readonly property int gap: 8
    readonly property bool isInSet: root.joinsPrevious || root.joinsNext
    readonly property color surround: root.isInSet ? Theme.track : root.ground

    signal pressed
    signal toggled
    signal previewRequested
    signal menuRequested(x: real, y: real)
    signal doubleClicked

    Accessible.role: root.kept ? Accessible.Graphic : Accessible.CheckBox
    Accessible.checkable: !root.kept
    Accessible.checked: root.selected
    Accessible.name: Strings.spoken([root.name, root.kept ? Strings.kept : root.size])
    Accessible.description: root.details
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()

    Item {
        anchors.fill: parent
        clip: true

        Rectangle {
            visible: root.isInSet
            x: (Theme.mirrored ? root.joinsNext : root.joinsPrevious) ? -16 : 1
            y: 1
            width: parent.width - x + ((Theme.mirrored ? root.joinsPrevious : root.joinsNext) ? 16 : -1)
            height: parent.height - 2
            radius: Theme.controlRadius + 3
            color: Theme.track
        }
    }

    Item {
        id: frame

        anchors.fill: parent
        anchors.margins: root.gap / 2

        Rectangle {
            anchors.fill: parent
            radius: Theme.controlRadius
            color: Theme.inset

            Symbol {
                anchors.centerIn: parent
                visible: !picture.isDrawn
                name: "doc.image"
                colour: Theme.tertiary
                size: 28
                grows: false
            }
        }

        Image {
            id: picture

            readonly property bool isDrawn: picture.status === Image.Ready && picture.implicitWidth > 0

            anchors.fill: parent
            source: root.source
            sourceSize.width: width
            sourceSize.height: height
            asynchronous: true
            opacity: picture.isDrawn ? 1 : 0
            Accessible.ignored: true

            Ease on opacity {}
        }

        // Rounds the picture's corners by painting over them: a mask would need a shader.
        Rectangle {
            anchors.fill: parent
            anchors.margins: -4
            radius: Theme.controlRadius + 4
            color: "transparent"
            border.width: 4
            border.color: root.surround
        }

        Rectangle {
            anchors.fill: parent
            radius: Theme.controlRadius
            color: "transparent"
            border.width: root.selected ? 3 : 1
            border.color: root.selected ? Theme.accentFill
                          : root.kept ? Theme.safeBase : Theme.photoEdge
        }

        Pill {
            anchors.right: parent.right
            anchors.bottom: parent.bottom
            anchors.margins: Theme.spaceS
            visible: root.size !== ""
            text: root.size
            ink: Theme.overPhoto
            color: Theme.photoShade
            Accessible.ignored: true
        }

        Pill {
            anchors.left: parent.left
            anchors.bottom: parent.bottom
            anchors.margins: Theme.spaceS
            visible: root.kept
            symbol: "checkmark"
            text: Strings.kept
            ink: Theme.overPhoto
            color: Theme.keptFill
            Accessible.ignored: true
        }

        FocusRing {
            shown: root.ringed
        }
    }

    MouseArea {
        id: area

        anchors.fill: frame
        hoverEnabled: true
        onPressed: root.pressed()
        onClicked: root.toggled()
        onDoubleClicked: root.doubleClicked()
    }

    TapHandler {
        acceptedButtons: Qt.RightButton
        onTapped: event => root.menuRequested(event.position.x, event.position.y)
    }

    CheckMark {
        anchors.left: frame.left
        anchors.top: frame.top
        anchors.margins: Theme.spaceXs
        visible: !root.kept
        checkState: root.selected ? Qt.Checked : Qt.Unchecked
        nextCheckState: () => checkState
        focusPolicy: Qt.NoFocus
        Accessible.ignored: true
        onClicked: root.toggled()
    }

    IconButton {
        anchors.right: frame.right
        anchors.top: frame.top
        anchors.margins: Theme.spaceXs
        side: 28
        visible: root.source !== "" && (area.containsMouse || hovered)
        framed: true
        symbol: "eye"
        symbolSize: 14
        text: Strings.preview
        focusPolicy: Qt.NoFocus
        onClicked: root.previewRequested()
    }

    ToolTipBubble {
        shown: area.containsMouse
        text: root.details === "" ? root.name : root.name + "\n" + root.details
    }
}

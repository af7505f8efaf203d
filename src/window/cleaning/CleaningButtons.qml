import QtQuick
import Orlen.App

/// What can be done at the end of a clean-up: beside each other, or below where there is no room.
Grid {
    id: root

    required property bool canUndo
    required property bool canOpenTrash
    /// The width that there is.
    required property real room
    readonly property real wanted: undo.implicitWidth + trash.implicitWidth + done.implicitWidth + 2 * root.spacing
    readonly property bool isStacked: root.wanted > root.room
    signal undoRequested
    signal trashRequested
    signal doneRequested

    columns: root.isStacked ? 1 : 3
    spacing: Theme.spaceS
    layoutDirection: Theme.mirrored ? Qt.RightToLeft : Qt.LeftToRight
    horizontalItemAlignment: Grid.AlignHCenter

    AppButton {
        id: undo

        objectName: "cleaningUndo"
        visible: root.canUndo
        text: Strings.undo
        onClicked: root.undoRequested()
    }

    AppButton {
        id: trash

        objectName: "openTrash"
        visible: root.canOpenTrash
        text: Strings.openTrash
        onClicked: root.trashRequested()
    }

    AppButton {
        id: done

        objectName: "cleaningDone"
        primary: true
        text: Strings.done
        onClicked: root.doneRequested()
    }
}

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A modal panel over the window that keeps the focus inside. Escape closes it.
T.Popup {
    id: root

    /// The panel's name for screen readers.
    required property string title
    property int wantedWidth: 760
    property int wantedHeight: 620
    /// False if only the program closes the panel.
    property bool closable: true
    /// Whether the window has little height, so that texts give way to lists.
    readonly property bool isLow: root.parent !== null && Theme.isLow(root.parent.height)

    parent: T.Overlay.overlay
    x: parent ? Math.round((parent.width - width) / 2) : 0
    y: parent ? Math.round((parent.height - height) / 2) : 0
    width: parent ? Math.min(root.wantedWidth, parent.width - 48) : root.wantedWidth
    height: parent ? Math.min(root.wantedHeight, parent.height - 48) : root.wantedHeight
    modal: true
    focus: true
    padding: 0
    closePolicy: root.closable ? T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutside : T.Popup.NoAutoClose

    T.Overlay.modal: Rectangle {
        color: Theme.scrim
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.sheetInDuration
        }
        NumberAnimation {
            property: "scale"
            from: 0.96
            to: 1
            duration: Theme.sheetInDuration
            easing.type: Easing.OutCubic
        }
    }

    exit: Transition {
        NumberAnimation {
            property: "opacity"
            to: 0
            duration: Theme.sheetOutDuration
        }
    }

    background: Rectangle {
        radius: Theme.sheetRadius
        color: Theme.card
        border.width: Theme.dark ? 1 : 0
        border.color: Theme.stroke
        Accessible.role: Accessible.Dialog
        Accessible.name: root.title
    }
}

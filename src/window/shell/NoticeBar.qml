import QtQuick
import QtQuick.Templates as T
import QtQuick.Window
import Orlen.App

/// Shows passing notices at the bottom of the window, above all sheets.
T.Popup {
    id: root

    required property Notices notices
    /// Width of the sidebar, since the bar is centred on the screen beside it.
    required property real besideScreen
    /// Whether it leaves the buttons of a sheet free.
    property bool aboveFooter: false

    /// Kept while the bar fades out.
    property string shownText: ""
    property bool shownPath: false
    property bool shownUndo: false
    /// What had the keyboard before the bar.
    property Item cameFrom: null
    readonly property string text: root.notices.text
    readonly property bool isFocused: copy.activeFocus || undo.activeFocus || close.activeFocus
    readonly property real roomForText: (parent ? parent.width - root.besideScreen - 48 : 620) - buttons.width - 64

    parent: T.Overlay.overlay
    z: 100
    x: parent ? Math.round((parent.width + (Theme.mirrored ? -1 : 1) * root.besideScreen - width) / 2) : 0
    y: parent ? parent.height - height - (root.aboveFooter ? Theme.widened(104) : 24) : 0
    width: sign.width + line.width + buttons.width + 52
    height: Math.max(Math.ceil(line.height), Theme.controlHeight) + 16
    padding: 8
    leftPadding: Theme.mirrored ? padding : Theme.spaceL
    rightPadding: Theme.mirrored ? Theme.spaceL : padding
    visible: root.text !== ""
    // A popup that closes on Escape by itself blocks the shortcuts of the window.
    closePolicy: T.Popup.NoAutoClose
    onTextChanged: {
        if (root.text === "")
            return;
        root.shownText = root.text;
        root.shownPath = root.notices.hasPath;
        root.shownUndo = root.notices.hasUndo;
        root.notices.announce(sheet);
    }
    onAboutToHide: {
        root.giveFocusBack();
        root.notices.dismiss();
    }

    function takeFocus() {
        root.cameFrom = root.contentItem.Window.activeFocusItem;
        const first = root.shownUndo ? undo : root.shownPath ? copy : close;
        first.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    function giveFocusBack() {
        if (root.isFocused && root.cameFrom !== null)
            root.cameFrom.forceActiveFocus(Qt.ShortcutFocusReason);
        root.cameFrom = null;
    }

    enter: Transition {
        NumberAnimation {
            property: "opacity"
            from: 0
            to: 1
            duration: Theme.sheetInDuration
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
        id: sheet

        radius: Theme.cardRadius
        color: Theme.raised
        border.width: 1
        border.color: Theme.tertiary
        Accessible.role: Accessible.AlertMessage
        Accessible.name: Strings.spoken([root.shownText, root.shownUndo ? Strings.undo : ""])
    }

    Binding {
        target: root.notices
        property: "held"
        value: root.visible && (hover.hovered || root.isFocused)
    }

    contentItem: Item {
        Shortcut {
            // What is there for long leaves the key to others, unless the keyboard is on it.
            enabled: root.visible && (!root.notices.lasting || root.isFocused)
            sequences: [StandardKey.Cancel]
            onActivated: root.notices.dismiss()
        }

        Shortcut {
            enabled: root.notices.hasUndo
            // Also while a sheet is open.
            context: Qt.ApplicationShortcut
            sequences: [StandardKey.Undo]
            onActivated: root.notices.undo()
        }

        Shortcut {
            enabled: root.visible
            context: Qt.ApplicationShortcut
            sequence: "F6"
            onActivated: root.isFocused ? root.giveFocusBack() : root.takeFocus()
        }

        HoverHandler {
            id: hover
        }

        Symbol {
            id: sign

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: "info.circle"
        }

        BodyText {
            id: line

            objectName: "notice"
            anchors.left: sign.right
            anchors.leftMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(Math.ceil(implicitWidth), 620, root.roomForText)
            text: root.shownText
            wrapMode: Text.Wrap
            maximumLineCount: 4
            Accessible.ignored: true
        }

        Row {
            id: buttons

            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            spacing: Theme.spaceXs

            AppButton {
                id: undo

                objectName: "undoNotice"
                visible: root.shownUndo
                quiet: true
                text: Strings.undo
                onClicked: root.notices.undo()
            }

            AppButton {
                id: copy

                objectName: "copyPath"
                visible: root.shownPath
                quiet: true
                text: Strings.copyPath
                onClicked: {
                    root.notices.copyPath();
                    root.notices.dismiss();
                }
            }

            IconButton {
                id: close

                objectName: "closeNotice"
                symbol: "xmark"
                text: Strings.close
                onClicked: root.notices.dismiss()
            }
        }
    }
}

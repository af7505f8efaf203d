import QtQuick
import Orlen.App

/// Lists the keyboard shortcuts.
Sheet {
    id: root

    title: texts.title
    wantedWidth: Theme.grown(560)
    wantedHeight: Theme.grown(660)

    ShortcutTexts {
        id: texts
    }

    contentItem: FocusScope {
        focus: true

        SheetHeader {
            id: header

            width: parent.width
            title: root.title
            onCloseRequested: root.close()
        }

        Divider {
            y: header.height
            width: parent.width
        }

        ScrollArea {
            id: area

            objectName: "shortcutKeys"
            anchors.fill: parent
            anchors.topMargin: header.height + 1
            anchors.bottomMargin: Theme.sheetRadius / 2
            contentHeight: groups.height + 2 * Theme.spaceL
            focus: true
            title: root.title

            Column {
                id: groups

                x: 24
                y: Theme.spaceL
                width: area.width - 48
                spacing: Theme.spaceXl

                Repeater {
                    model: texts.groups

                    ShortcutGroup {
                        required property var modelData

                        width: groups.width
                        title: modelData.title
                        shortcuts: modelData.shortcuts
                    }
                }
            }
        }
    }
}

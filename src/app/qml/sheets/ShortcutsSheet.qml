import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// The keys of the program.
Sheet {
    id: root

    objectName: "shortcutsSheet"
    title: Strings.shortcutsTitle
    wantedWidth: Math.round(560 * Theme.textScale)
    wantedHeight: Math.round(620 * Theme.textScale)

    contentItem: FocusScope {
        focus: true

        Text {
            id: heading

            x: 24
            y: 22
            width: parent.width - 24 - 64
            text: root.title
            textFormat: Text.PlainText
            elide: Text.ElideRight
            color: Theme.text
            font.pixelSize: Theme.titleSize
            font.weight: Font.Bold
            Accessible.role: Accessible.Heading
            Accessible.name: text
        }

        IconButton {
            objectName: "closeShortcuts"
            anchors.right: parent.right
            anchors.rightMargin: 16
            anchors.verticalCenter: heading.verticalCenter
            symbol: "xmark"
            text: Strings.close
            onClicked: root.close()
        }

        Rectangle {
            y: heading.y + heading.height + 18
            width: parent.width
            height: 1
            color: Theme.stroke
        }

        Flickable {
            id: flickable

            objectName: "shortcutKeys"
            anchors.fill: parent
            anchors.topMargin: heading.y + heading.height + 19
            anchors.bottomMargin: Theme.sheetRadius / 2
            contentHeight: groups.height + 36
            boundsBehavior: Flickable.StopAtBounds
            clip: true
            focus: true
            activeFocusOnTab: contentHeight > height
            Accessible.role: Accessible.Pane
            Accessible.name: root.title
            Keys.onUpPressed: handle.decrease()
            Keys.onDownPressed: handle.increase()
            T.ScrollBar.vertical: ScrollHandle {
                id: handle

                stepSize: 0.12
            }

            Column {
                id: groups

                x: 24
                y: 18
                width: flickable.width - 48
                spacing: 20

                Repeater {
                    model: Strings.shortcutGroups

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

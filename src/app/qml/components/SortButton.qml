import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// One of the orders of a list; the one in force is marked.
T.Button {
    id: root

    property bool current: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Math.round(28 * Theme.textScale)
    leftPadding: 10
    rightPadding: 10
    focusPolicy: Qt.StrongFocus
    hoverEnabled: true
    Accessible.name: Strings.sortBy.arg(root.text)
    Accessible.checkable: true
    Accessible.checked: root.current

    Keys.onReturnPressed: root.clicked()
    Keys.onEnterPressed: root.clicked()

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            spacing: 6

            Text {
                anchors.verticalCenter: parent.verticalCenter
                text: root.text
                textFormat: Text.PlainText
                color: root.current ? Theme.text : Theme.secondary
                font.pixelSize: Theme.captionSize
                font.weight: root.current ? Font.DemiBold : Font.Medium
            }

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.current
                name: "chevron.down"
                colour: Theme.text
                size: 10
            }
        }
    }

    background: Rectangle {
        radius: Theme.controlRadius
        color: root.hovered || root.down ? Theme.hover : root.current ? Theme.inset : "transparent"

        FocusRing {
            shown: root.visualFocus
            gap: 1
        }
    }
}

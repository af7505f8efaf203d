import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// Two ways to show the same thing, one of them chosen.
Rectangle {
    id: root

    required property string firstSymbol
    required property string firstText
    required property string secondSymbol
    required property string secondText
    /// 0 or 1
    required property int current
    signal selected(index: int)

    component Segment: T.AbstractButton {
        id: segment

        required property int number
        required property string symbol

        width: height + 6
        height: Theme.controlHeight - 6
        checkable: false
        focusPolicy: Qt.StrongFocus
        hoverEnabled: true
        Accessible.name: segment.text
        Accessible.checked: root.current === segment.number
        onClicked: root.selected(segment.number)

        Keys.onReturnPressed: segment.clicked()
        Keys.onEnterPressed: segment.clicked()
        Keys.onLeftPressed: root.selected(0)
        Keys.onRightPressed: root.selected(1)

        contentItem: Item {
            Symbol {
                anchors.centerIn: parent
                name: segment.symbol
                colour: root.current === segment.number || segment.hovered ? Theme.text : Theme.tertiary
                size: 15
            }
        }

        background: Rectangle {
            radius: Theme.controlRadius - 2
            color: root.current === segment.number ? Theme.raised : "transparent"
            border.width: root.current === segment.number ? 1 : 0
            border.color: Theme.stroke

            FocusRing {
                shown: segment.visualFocus
                gap: 1
            }
        }

        ToolTipBubble {
            shown: segment.hovered
            text: segment.text
        }
    }

    implicitWidth: row.width + 6
    implicitHeight: Theme.controlHeight
    radius: Theme.controlRadius
    color: Theme.inset
    border.width: 1
    border.color: Theme.stroke

    Row {
        id: row

        x: 3
        y: 3

        Segment {
            number: 0
            symbol: root.firstSymbol
            text: root.firstText
        }

        Segment {
            number: 1
            symbol: root.secondSymbol
            text: root.secondText
        }
    }
}

import QtQuick
import Orlen.App

/// Switches between two ways to show the same thing.
Rectangle {
    id: root

    required property string firstSymbol
    required property string firstText
    required property string secondSymbol
    required property string secondText
    /// The chosen segment: 0 or 1.
    required property int current
    signal selected(index: int)

    component Segment: IconButton {
        id: segment

        required property int number
        readonly property bool isChosen: root.current === segment.number

        width: height + 6
        height: Theme.controlHeight - 6
        symbolSize: 15
        ink: segment.isChosen ? Theme.text : Theme.tertiary
        fill: segment.isChosen ? Theme.raised : Theme.clear
        edgeWidth: segment.isChosen ? 1 : 0
        corner: Theme.controlRadius - 2
        ringGap: 1
        Accessible.checked: segment.isChosen
        onClicked: root.selected(segment.number)

        Keys.onLeftPressed: root.selected(Theme.mirrored ? 1 : 0)
        Keys.onRightPressed: root.selected(Theme.mirrored ? 0 : 1)
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

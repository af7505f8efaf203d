import QtQuick
import Orlen.App

/// A word or two on a rounded background, with an optional icon.
Rectangle {
    id: root

    required property string text
    property string symbol: ""
    property color ink: Theme.text

    implicitWidth: row.implicitWidth + 2 * Theme.spaceS
    implicitHeight: Theme.grown(22)
    radius: height / 2
    Accessible.role: Accessible.StaticText
    Accessible.name: root.text

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.spaceXs

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            visible: root.symbol !== ""
            name: root.symbol
            colour: root.ink
            size: 12
        }

        CaptionText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: root.ink
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}

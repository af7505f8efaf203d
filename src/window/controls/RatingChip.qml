import QtQuick
import Orlen.App

/// The advice about a finding or an entry.
Rectangle {
    id: root

    property ratingValue rating
    /// Raw value of a rating, for the colours; empty: nothing is shown.
    property string name: root.rating.name
    property string label: root.rating.label
    property string symbol: root.rating.symbol

    readonly property color base: Theme.ratingBase(root.name)

    implicitWidth: row.implicitWidth + 18
    implicitHeight: Theme.grown(22)
    radius: height / 2
    color: Theme.tint(root.base, Theme.chipOpacity)
    visible: root.name !== ""
    Accessible.role: Accessible.StaticText
    Accessible.name: root.label

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.spaceXs

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            colour: Theme.ratingText(root.name)
            size: 12
        }

        CaptionText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            color: Theme.ratingText(root.name)
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}

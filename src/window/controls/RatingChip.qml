import QtQuick
import Orlen.App

/// The advice about a finding or an entry.
Rectangle {
    id: root

    /// Raw value: "safe", "review", "keep".
    required property string rating
    required property string label
    required property string symbol

    readonly property color base: Theme.ratingBase(root.rating)

    implicitWidth: row.implicitWidth + 18
    implicitHeight: Theme.grown(22)
    radius: height / 2
    color: Theme.tint(root.base, Theme.chipOpacity)
    visible: root.rating !== ""
    Accessible.role: Accessible.StaticText
    Accessible.name: root.label

    Row {
        id: row

        anchors.centerIn: parent
        spacing: Theme.spaceXs

        Symbol {
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            colour: Theme.ratingText(root.rating)
            size: 12
        }

        CaptionText {
            anchors.verticalCenter: parent.verticalCenter
            text: root.label
            color: Theme.ratingText(root.rating)
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }
    }
}

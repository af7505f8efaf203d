import QtQuick
import QtQuick.Layouts
import Orlen.App

/// Cards with a text each, side by side and as high as their neighbours.
GridLayout {
    id: root

    /// Symbol, title and body of each.
    required property var texts
    required property list<color> tones
    /// Columns at most, and how narrow one may get.
    property int most: 2
    property int narrowest: 320
    /// Whether the headlines stand beside their badges.
    property bool beside: false

    columns: Math.max(1, Math.min(root.most, Math.floor((root.width + 16) / (root.narrowest * Theme.textScale + 16))))
    columnSpacing: Theme.spaceL
    rowSpacing: Theme.spaceL

    Repeater {
        model: root.texts

        TextCard {
            required property int index
            required property var modelData

            Layout.fillWidth: true
            Layout.fillHeight: true
            Layout.preferredWidth: 1
            symbol: modelData.symbol
            tone: root.tones[index % root.tones.length]
            beside: root.beside
            title: modelData.title
            body: modelData.body
        }
    }
}

import QtQuick
import QtQuick.Layouts
import Orlen.App

/// A grid of text cards, all in a row equally tall.
GridLayout {
    id: root

    /// Symbol, title and body of each card.
    required property var texts
    required property list<color> tones
    /// Maximum number of columns; `narrowest` is their minimum width.
    property int most: 2
    property int narrowest: 320
    /// Whether headlines are beside their badges.
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

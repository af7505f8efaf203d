import QtQuick
import Orlen.App

/// A headline with a badge and what there is to say about it.
Card {
    id: root

    required property string symbol
    required property color tone
    required property string title
    required property string body

    implicitHeight: column.height + 40
    Accessible.role: Accessible.StaticText
    Accessible.name: root.title + ". " + root.body

    Column {
        id: column

        x: 20
        y: 20
        width: root.width - 40
        spacing: 8

        Badge {
            name: root.symbol
            tone: root.tone
            size: 36
        }

        Text {
            width: parent.width
            topPadding: 4
            text: root.title
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            color: Theme.text
            font.pixelSize: Theme.headlineSize
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Text {
            width: parent.width
            text: root.body
            textFormat: Text.PlainText
            wrapMode: Text.WordWrap
            lineHeight: 1.3
            color: Theme.secondary
            font.pixelSize: Theme.bodySize
            Accessible.ignored: true
        }
    }
}

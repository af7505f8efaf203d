import QtQuick
import Orlen.App

/// Title of a screen and the sentence below it.
Column {
    id: root

    required property string title
    property string subtitle: ""

    spacing: 6

    Text {
        width: root.width
        text: root.title
        textFormat: Text.PlainText
        color: Theme.text
        elide: Text.ElideRight
        font.pixelSize: Theme.titleSize
        font.weight: Font.Bold
        Accessible.role: Accessible.Heading
        Accessible.name: root.title
    }

    Text {
        width: root.width
        visible: root.subtitle !== ""
        text: root.subtitle
        textFormat: Text.PlainText
        color: Theme.secondary
        wrapMode: Text.WordWrap
        font.pixelSize: Theme.smallSize
    }
}

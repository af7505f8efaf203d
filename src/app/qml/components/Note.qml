import QtQuick
import Orlen.App

/// A quiet remark with an icon before it.
Row {
    id: root

    required property string text
    property string symbol: "info.circle"
    property color ink: Theme.secondary

    spacing: 8

    Symbol {
        y: Math.max(0, (label.font.pixelSize * 1.25 - height) / 2)
        visible: root.symbol !== ""
        name: root.symbol
        colour: root.ink
        size: 14
    }

    Text {
        id: label

        width: root.width - (root.symbol === "" ? 0 : 22)
        text: root.text
        textFormat: Text.PlainText
        color: root.ink
        wrapMode: Text.WordWrap
        lineHeight: 1.25
        font.pixelSize: Theme.captionSize
    }
}

import QtQuick
import Orlen.App

/// A small note with an icon.
Row {
    id: root

    required property string text
    property string symbol: "info.circle"
    property color ink: Theme.secondary
    readonly property alias lineCount: label.lineCount

    spacing: Theme.spaceS

    Symbol {
        id: sign

        y: Math.max(0, (label.font.pixelSize * label.lineHeight - height) / 2)
        visible: root.symbol !== ""
        name: root.symbol
        colour: root.ink
        size: 14
    }

    Paragraph {
        id: label

        width: root.width - (root.symbol === "" ? 0 : sign.width + root.spacing)
        text: root.text
        color: root.ink
        font.pixelSize: Theme.captionSize
    }
}

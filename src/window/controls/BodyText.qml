import QtQuick
import Orlen.App

/// Text of normal size. Always plain, so that a file name is never parsed as markup.
Text {
    textFormat: Text.PlainText
    // Where the reader begins, whatever a name is written in.
    horizontalAlignment: Text.AlignLeft
    elide: Text.ElideRight
    color: Theme.text
    font.pixelSize: Theme.bodySize
}

import QtQuick
import Orlen.App

/// A sentence in the head of a sheet.
Text {
    textFormat: Text.PlainText
    wrapMode: Text.WordWrap
    maximumLineCount: 3
    elide: Text.ElideRight
    lineHeight: 1.15
    color: Theme.secondary
    font.pixelSize: Theme.smallSize
}

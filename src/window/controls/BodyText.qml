import QtQuick
import Orlen.App

/// Text of the usual size. Always plain: the name of a file must never be read as markup.
Text {
    textFormat: Text.PlainText
    elide: Text.ElideRight
    color: Theme.text
    font.pixelSize: Theme.bodySize
}

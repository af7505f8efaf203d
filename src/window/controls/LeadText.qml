import QtQuick
import Orlen.App

/// A sentence in large type below a heading or a picture.
BodyText {
    wrapMode: Text.WordWrap
    color: Theme.secondary
    font.pixelSize: Theme.headlineSize
}

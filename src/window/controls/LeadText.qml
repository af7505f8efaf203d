import QtQuick
import Orlen.App

/// A large sentence below a heading or picture.
BodyText {
    wrapMode: Text.WordWrap
    color: Theme.secondary
    font.pixelSize: Theme.headlineSize
}

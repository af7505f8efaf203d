import QtQuick
import Orlen.App

/// Wrapped text of a sentence or more.
SmallText {
    wrapMode: Text.WordWrap
    lineHeight: 1.2
}

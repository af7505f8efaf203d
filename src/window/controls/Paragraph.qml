import QtQuick
import Orlen.App

/// A sentence or more, over as many lines as it takes.
SmallText {
    wrapMode: Text.WordWrap
    lineHeight: 1.2
}

import QtQuick
import Orlen.App

/// A screen's title and the sentence below it.
Column {
    id: root

    required property string title
    property string subtitle: ""

    spacing: Theme.spaceXs

    TitleText {
        width: root.width
        text: root.title
        wrapMode: Text.WordWrap
    }

    SmallText {
        width: root.width
        visible: root.subtitle !== ""
        text: root.subtitle
        wrapMode: Text.WordWrap
    }
}

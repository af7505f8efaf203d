import QtQuick
import Orlen.App

/// A row's name, with its folder and an optional note below. The row itself names them for screen readers.
Column {
    id: root

    required property string name
    required property string place
    property color placeInk: Theme.tertiary
    property string note: ""
    property color noteInk: Theme.secondary

    spacing: 2

    BodyText {
        width: root.width
        text: root.name
        elide: Text.ElideMiddle
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    CaptionText {
        width: root.width
        visible: root.place !== ""
        text: root.place
        elide: Text.ElideMiddle
        color: root.placeInk
        Accessible.ignored: true
    }

    CaptionText {
        width: root.width
        visible: root.note !== ""
        text: root.note
        wrapMode: Text.Wrap
        maximumLineCount: 6
        color: root.noteInk
        Accessible.ignored: true
    }
}

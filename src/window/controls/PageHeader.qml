import QtQuick
import Orlen.App

/// A screen's title and the sentence below it.
Column {
    id: root

    required property string title
    property string subtitle: ""
    /// Whether the room is better left to what is below.
    property bool isBrief: false

    spacing: Theme.spaceXs

    TitleText {
        width: root.width
        text: root.title
        wrapMode: Text.WordWrap
    }

    SmallText {
        width: root.width
        visible: root.subtitle !== "" && !root.isBrief
        text: root.subtitle
        wrapMode: Text.WordWrap
    }
}

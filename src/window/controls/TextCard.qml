import QtQuick
import Orlen.App

/// A card with a badge, a headline and a paragraph.
ColumnCard {
    id: root

    required property string symbol
    required property color tone
    required property string title
    required property string body
    /// Whether the headline is beside the badge rather than below it.
    property bool beside: false

    spacing: root.beside ? 10 : 8
    Accessible.role: Accessible.StaticText
    Accessible.name: Strings.spokenText(root.title, root.body)

    Badge {
        anchors.left: parent.left
        visible: !root.beside
        name: root.symbol
        tone: root.tone
        size: 36
    }

    HeadlineText {
        width: parent.width
        height: root.beside ? Math.max(32, implicitHeight) : implicitHeight
        leftPadding: root.beside && !Theme.mirrored ? 44 : 0
        rightPadding: root.beside && Theme.mirrored ? 44 : 0
        topPadding: root.beside ? 0 : 4
        verticalAlignment: Text.AlignVCenter
        elide: Text.ElideNone
        text: root.title
        wrapMode: Text.WordWrap
        Accessible.ignored: true

        Badge {
            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            visible: root.beside
            name: root.symbol
            tone: root.tone
            size: 32
        }
    }

    Paragraph {
        width: parent.width
        text: root.body
        font.pixelSize: Theme.bodySize
        Accessible.ignored: true
    }
}

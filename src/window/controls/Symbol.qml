import QtQuick
import Orlen.App

/// An icon in one colour.
Image {
    id: root

    required property string name
    property color colour: Theme.secondary
    property int size: 16
    /// Whether it scales with the text size, as most icons do.
    property bool grows: true

    /// Whether it points along the line, so that it turns with the language.
    readonly property bool isDirected: root.name === "chevron.right" || root.name === "chevron.left"
                                       || root.name === "list.bullet"
    readonly property int side: root.grows ? Math.round(root.size * Theme.textScale) : root.size

    mirror: root.isDirected && Theme.mirrored
    width: root.side
    height: root.side
    sourceSize.width: root.side
    sourceSize.height: root.side
    source: root.name === "" ? "" : "image://symbol/" + root.name + "/" + Theme.hex(root.colour)
    Accessible.ignored: true
}

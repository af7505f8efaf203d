import QtQuick
import Orlen.App

/// One icon in one colour.
Image {
    id: root

    required property string name
    property color colour: Theme.secondary
    property int size: 16

    width: root.size
    height: root.size
    sourceSize.width: root.size
    sourceSize.height: root.size
    source: root.name === "" ? "" : "image://symbol/" + root.name + "/" + Theme.hex(root.colour)
    Accessible.ignored: true
}

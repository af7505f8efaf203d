import QtQuick
import Orlen.App

/// A white icon on a rounded square.
Image {
    id: root

    required property string name
    required property color tone
    property int size: 24

    width: root.size
    height: root.size
    sourceSize.width: root.size
    sourceSize.height: root.size
    source: root.name === "" ? "" : "image://badge/" + root.name + "/" + Theme.hex(root.tone)
    Accessible.ignored: true
}

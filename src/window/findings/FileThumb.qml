import QtQuick
import Orlen.App

/// A file's thumbnail, or an icon for its type if it has none.
Item {
    id: root

    required property string symbol
    /// Image source; may be empty.
    required property string thumbnail
    property int size: Theme.grown(36)

    width: root.size
    height: root.size
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: Theme.controlRadius
        color: Theme.inset
        visible: !picture.hasPixels

        Symbol {
            anchors.centerIn: parent
            name: root.symbol
            size: Math.round(root.size * 0.5)
            grows: false
        }
    }

    Image {
        id: picture

        readonly property bool hasPixels: picture.status === Image.Ready && picture.implicitWidth > 0

        anchors.centerIn: parent
        width: root.size
        height: root.size
        asynchronous: true
        cache: false
        fillMode: Image.PreserveAspectCrop
        sourceSize.width: root.size
        sourceSize.height: root.size
        source: root.thumbnail
        opacity: picture.hasPixels ? 1 : 0

        Ease on opacity {}
    }

    Rectangle {
        anchors.fill: parent
        color: "transparent"
        border.width: 1
        border.color: Theme.stroke
        visible: picture.hasPixels
    }
}

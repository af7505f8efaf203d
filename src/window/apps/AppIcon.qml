import QtQuick
import Orlen.App

/// Another program's icon, loaded in the background.
Image {
    id: root

    /// Icon name as given by the application models.
    required property string icon
    property int size: 40

    width: root.size
    height: root.size
    sourceSize.width: root.size
    sourceSize.height: root.size
    asynchronous: true
    source: root.icon === "" ? "" : "image://appicon/" + root.icon
    Accessible.ignored: true

    Rectangle {
        anchors.fill: parent
        radius: width * 0.28
        visible: root.status === Image.Loading
        color: Theme.inset
    }
}

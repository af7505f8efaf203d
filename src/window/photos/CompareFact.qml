import QtQuick
import Orlen.App

/// One line about a photo, marked where the photos differ.
Item {
    id: root

    required property string fact
    required property bool differs

    implicitHeight: label.height
    Accessible.role: Accessible.StaticText
    Accessible.name: root.differs ? Strings.differs(root.fact) : root.fact

    Rectangle {
        anchors.left: parent.left
        anchors.verticalCenter: parent.verticalCenter
        width: 6
        height: 6
        radius: 3
        visible: root.differs && root.fact !== ""
        color: Theme.accent
    }

    CaptionText {
        id: label

        anchors.left: parent.left
        anchors.leftMargin: 12
        anchors.right: parent.right
        text: root.fact
        elide: Text.ElideMiddle
        color: root.differs ? Theme.text : Theme.tertiary
        font.weight: root.differs ? Font.DemiBold : Font.Normal
        Accessible.ignored: true
    }
}

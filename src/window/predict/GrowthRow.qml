import QtQuick
import Orlen.App

/// How fast one category grows.
Item {
    id: root

    required property string label
    required property color colour
    required property string rate
    required property real start
    required property real extent

    implicitHeight: Theme.grown(38)
    Accessible.role: Accessible.ListItem
    Accessible.name: Strings.spoken([root.label, root.rate])

    Rectangle {
        id: dot

        anchors.left: parent.left
        anchors.leftMargin: Theme.cardMargin
        anchors.verticalCenter: parent.verticalCenter
        width: 10
        height: 10
        radius: 5
        color: root.colour
    }

    BodyText {
        id: title

        anchors.left: dot.right
        anchors.leftMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.grown(104)
        text: root.label
        font.weight: Font.Medium
        Accessible.ignored: true
    }

    ProgressBar {
        anchors.left: title.right
        anchors.leftMargin: Theme.spaceM
        anchors.right: amount.left
        anchors.rightMargin: Theme.spaceM
        anchors.verticalCenter: parent.verticalCenter
        height: 6
        color: Theme.inset
        tone: root.colour
        start: root.start
        value: root.extent
        Accessible.ignored: true
    }

    SmallText {
        id: amount

        anchors.right: parent.right
        anchors.rightMargin: Theme.cardMargin
        anchors.verticalCenter: parent.verticalCenter
        width: Theme.grown(144)
        horizontalAlignment: Text.AlignRight
        text: root.rate
        fontSizeMode: Text.HorizontalFit
        minimumPixelSize: 8
        Accessible.ignored: true
    }
}

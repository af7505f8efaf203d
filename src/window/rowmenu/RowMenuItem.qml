import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// One action of a menu.
T.MenuItem {
    id: root

    required property bool startsGroup
    property string symbol: ""

    readonly property int gap: root.startsGroup ? 9 : 0

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: 200
    implicitHeight: Theme.widened(32) + root.gap
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    topPadding: root.gap
    hoverEnabled: true
    Accessible.name: root.text

    contentItem: Item {
        Symbol {
            id: icon

            anchors.left: parent.left
            anchors.verticalCenter: parent.verticalCenter
            name: root.symbol
            size: 14
        }

        BodyText {
            anchors.left: icon.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: parent.right
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }
    }

    background: Item {
        Divider {
            y: 4
            width: parent.width
            visible: root.startsGroup
        }

        Rectangle {
            anchors.fill: parent
            anchors.topMargin: root.gap
            radius: Theme.controlRadius
            color: root.highlighted ? Theme.accentSoft : "transparent"
            border.width: root.highlighted && root.visualFocus ? 2 : 0
            border.color: Theme.accent
        }
    }
}

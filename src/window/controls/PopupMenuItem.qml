import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// One action of a menu.
T.MenuItem {
    id: root

    required property bool startsGroup
    property string symbol: ""
    /// Why it cannot be done; empty if it can.
    property string refusal: ""

    readonly property int gap: root.startsGroup ? 9 : 0

    width: ListView.view ? ListView.view.width : implicitWidth
    implicitWidth: 200
    implicitHeight: Theme.widened(32) + root.gap + (why.visible ? why.height + Theme.spaceS : 0)
    leftPadding: Theme.spaceM
    rightPadding: Theme.spaceM
    topPadding: root.gap
    hoverEnabled: true
    Accessible.name: Strings.spoken([root.text, root.refusal])

    contentItem: Item {
        Symbol {
            id: icon

            anchors.left: parent.left
            anchors.verticalCenter: title.verticalCenter
            name: root.symbol
            size: 14
        }

        BodyText {
            id: title

            anchors.left: icon.right
            anchors.leftMargin: Theme.spaceM
            anchors.right: parent.right
            height: why.visible ? Theme.widened(28) : parent.height
            verticalAlignment: Text.AlignVCenter
            text: root.text
            color: root.refusal === "" ? Theme.text : Theme.secondary
            elide: Text.ElideMiddle
            Accessible.ignored: true
        }

        CaptionText {
            id: why

            anchors.left: title.left
            anchors.right: parent.right
            anchors.top: title.bottom
            visible: root.refusal !== ""
            text: root.refusal
            wrapMode: Text.Wrap
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

import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A drop-down field with a few values.
T.ComboBox {
    id: root

    /// What the values are for, read before the value by screen readers.
    required property string label
    /// Whether the release of Enter opens the list.
    property bool isAwaited: false

    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: Theme.widened(28)
    leftPadding: root.mirrored ? 26 : Theme.spaceS
    rightPadding: root.mirrored ? Theme.spaceS : 26
    hoverEnabled: true
    focusPolicy: Qt.StrongFocus
    Accessible.name: Strings.spoken([root.label, root.displayText])

    // The list would close again on the release of the key that opened it.
    Keys.onReturnPressed: event => root.awaitRelease(event)
    Keys.onEnterPressed: event => root.awaitRelease(event)
    Keys.onReleased: event => {
        event.accepted = root.isAwaited && (event.key === Qt.Key_Return || event.key === Qt.Key_Enter);
        if (!event.accepted)
            return;
        root.isAwaited = false;
        root.popup.open();
    }

    function awaitRelease(event: KeyEvent) {
        event.accepted = !root.popup.visible;
        root.isAwaited = event.accepted;
    }

    contentItem: SmallText {
        text: root.displayText
        verticalAlignment: Text.AlignVCenter
        color: Theme.text
        font.weight: Font.DemiBold
        Accessible.ignored: true
    }

    indicator: Symbol {
        x: root.mirrored ? 10 : root.width - width - 10
        y: (root.height - height) / 2
        name: "chevron.down"
        size: 10
    }

    background: Rectangle {
        radius: 7
        color: root.hovered || root.down ? Theme.hover : Theme.inset
        border.width: 1
        border.color: Theme.stroke

        FocusRing {
            shown: InputMode.keyed && root.activeFocus
            gap: 2
        }
    }

    delegate: T.ItemDelegate {
        id: choice

        required property int index
        required property string modelData

        width: ListView.view ? ListView.view.width : 0
        implicitHeight: Theme.widened(30)
        highlighted: root.highlightedIndex === choice.index
        text: choice.modelData
        Accessible.name: choice.modelData

        contentItem: SmallText {
            leftPadding: root.mirrored ? 0 : 26
            rightPadding: root.mirrored ? 26 : 0
            text: choice.modelData
            verticalAlignment: Text.AlignVCenter
            color: Theme.text
            font.weight: root.currentIndex === choice.index ? Font.DemiBold : Font.Normal
            Accessible.ignored: true
        }

        background: Rectangle {
            radius: 6
            color: choice.highlighted ? Theme.hover : "transparent"

            Symbol {
                anchors.left: parent.left
                anchors.leftMargin: 8
                anchors.verticalCenter: parent.verticalCenter
                visible: root.currentIndex === choice.index
                name: "checkmark"
                colour: Theme.accent
                size: 12
            }
        }
    }

    popup: T.Popup {
        x: root.mirrored ? root.width - width : 0
        y: root.height + 4
        width: Math.max(root.width, 112)
        implicitHeight: contentHeight + topPadding + bottomPadding
        margins: Theme.spaceS
        padding: 4

        contentItem: ListView {
            implicitHeight: contentHeight
            clip: true
            model: root.delegateModel
            currentIndex: root.highlightedIndex
            boundsBehavior: Flickable.StopAtBounds
        }

        background: Rectangle {
            radius: 9
            color: Theme.card
            border.width: 1
            border.color: Theme.stroke
        }
    }
}

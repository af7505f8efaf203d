import QtQuick
import Orlen.App

/// The findings as a grid of cards. Tab stops once; the arrow keys move between cards.
Grid {
    id: root

    signal chosen(id: string)
    /// Emitted when the keyboard reaches a card.
    signal reached(card: Item)

    readonly property real cardWidth: (root.width - (root.columns - 1) * root.spacing) / root.columns
    property int current: 0

    columns: Math.max(1, Math.min(4, Math.floor((root.width + root.spacing) / (220 * Theme.textScale + root.spacing))))
    spacing: Theme.spaceL
    Accessible.role: Accessible.List
    Accessible.name: Strings.findings

    move: Transition {
        NumberAnimation {
            properties: "x,y"
            duration: Theme.screenDuration
            easing.type: Easing.OutCubic
        }
    }

    Keys.onLeftPressed: root.go(root.current + (Theme.mirrored ? 1 : -1))
    Keys.onRightPressed: root.go(root.current + (Theme.mirrored ? -1 : 1))
    Keys.onUpPressed: root.go(root.current - root.columns)
    Keys.onDownPressed: root.go(root.current + root.columns)
    Keys.onPressed: event => {
        if (event.key !== Qt.Key_Home && event.key !== Qt.Key_End)
            return;
        event.accepted = true;
        root.go(event.key === Qt.Key_Home ? 0 : cards.count - 1);
    }

    Repeater {
        id: cards

        model: FindingListModel {}

        FindingCard {
            id: card

            required property int index

            objectName: "finding-" + card.findingId
            width: root.cardWidth
            // Another card may come before the one that has the focus.
            activeFocusOnTab: card.activeFocus || card.index === Math.min(root.current, cards.count - 1)
            onIndexChanged: {
                if (card.activeFocus)
                    root.current = card.index;
            }
            onClicked: root.chosen(card.findingId)
            onActiveFocusChanged: {
                if (!card.activeFocus)
                    return;
                root.current = card.index;
                root.reached(card);
            }
        }
    }

    function go(index: int) {
        if (index >= 0 && index < cards.count)
            cards.itemAt(index).forceActiveFocus(Qt.TabFocusReason);
    }
}

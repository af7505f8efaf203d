import QtQuick
import Orlen.App

/// What Orlen does not touch in a category, and the commands that free it.
Column {
    id: root

    required property CategoryModel category
    /// Emitted when the keyboard reaches a button.
    signal reached(item: Item)

    spacing: Theme.spaceM
    Accessible.role: Accessible.List
    Accessible.name: Strings.beyondOrlen

    HeadlineText {
        width: parent.width
        visible: cards.count > 0 || root.category.collecting
        text: Strings.beyondOrlen
    }

    Paragraph {
        width: parent.width
        visible: cards.count > 0
        text: Strings.beyondOrlenLead
        color: Theme.secondary
    }

    SmallText {
        width: parent.width
        visible: root.category.collecting && cards.count === 0
        text: Strings.lookingForAdvice
        color: Theme.tertiary
    }

    Repeater {
        id: cards

        model: root.category.advice

        AdviceCard {
            id: card

            required property int index

            objectName: "advice-" + card.index
            width: root.width
            onCopyRequested: root.category.advice.copy(card.index)
            onReached: root.reached(card)
        }
    }
}

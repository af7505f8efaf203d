import QtQuick
import Orlen.App

/// Says what the colours of the disk map tell, and opens the choice.
MenuButton {
    id: root

    required property TileColours colours

    function label(meaning: int): string {
        switch (meaning) {
        case TileColours.Age:
            return Strings.colourByChange;
        case TileColours.Growth:
            return Strings.colourByGrowth;
        case TileColours.Rating:
            return Strings.colourByRating;
        default:
            return Strings.colourByKind;
        }
    }

    menu: choices
    text: root.label(root.colours.meaning)
    onClicked: root.openMenu(root.colours.meaning)

    PopupMenu {
        id: choices

        implicitWidth: Theme.widened(280)
        title: Strings.coloursOfMap

        Repeater {
            model: [TileColours.Kind, TileColours.Age, TileColours.Growth, TileColours.Rating]

            PopupMenuItem {
                required property int modelData

                objectName: "colourBy-" + modelData
                startsGroup: false
                symbol: root.colours.meaning === modelData ? "checkmark" : ""
                text: root.label(modelData)
                refusal: modelData === TileColours.Growth ? root.colours.growthRefusal : ""
                Accessible.checkable: true
                Accessible.checked: root.colours.meaning === modelData
                onTriggered: root.colours.choose(modelData)
            }
        }
    }
}

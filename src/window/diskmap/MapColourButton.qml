import QtQuick
import Orlen.App

/// Says what the colours of the disk map tell, and opens the choice.
Pressable {
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

    implicitWidth: title.implicitWidth + arrow.width + 2 * Theme.spaceS + Theme.spaceXs
    implicitHeight: Theme.widened(28)
    corner: 7
    fill: root.hovered || root.down || menu.visible ? Theme.hover : Theme.inset
    edgeWidth: 1
    text: root.label(root.colours.meaning)
    Accessible.role: Accessible.ButtonMenu
    onClicked: {
        menu.currentIndex = root.colours.meaning;
        menu.popup(root, Theme.mirrored ? root.width - menu.width : 0, root.height + Theme.spaceXs);
        menu.currentIndex = root.colours.meaning;
    }

    contentItem: Item {
        SmallText {
            id: title

            anchors.left: parent.left
            anchors.leftMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.text
            color: Theme.text
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        Symbol {
            id: arrow

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            name: "chevron.down"
            size: 10
        }
    }

    PopupMenu {
        id: menu

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

import QtQuick
import Orlen.App

/// One finding: its title, size, rating and how much of it is selected.
Pressable {
    id: root

    required property string findingId
    required property string title
    required property string symbol
    required property color tone
    required property ratingValue rating
    required property string size
    required property string count
    required property string selected
    required property bool cleanable

    readonly property string amount: root.selected === "" ? root.count : Strings.selected(root.selected)

    implicitHeight: Theme.grown(92) + 40
    fill: root.down ? Theme.inset : root.cleanable ? Theme.card : "transparent"
    edge: root.hovered ? Theme.accent : Theme.stroke
    edgeWidth: 1
    corner: Theme.cardRadius
    text: root.title
    Accessible.name: Strings.spoken([root.title, root.size, root.amount, root.rating.label])

    contentItem: Item {
        Badge {
            anchors.left: parent.left
            anchors.leftMargin: 16
            y: 16
            name: root.symbol
            tone: root.tone
            size: 32
        }

        RatingChip {
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceM
            y: 16
            rating: root.rating
            Accessible.ignored: true
        }

        BodyText {
            id: name

            anchors.left: parent.left
            anchors.right: parent.right
            anchors.margins: Theme.spaceL
            anchors.bottom: figure.top
            anchors.bottomMargin: Theme.spaceXs
            text: root.title
            wrapMode: Text.WordWrap
            maximumLineCount: 2
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        TitleText {
            id: figure

            anchors.left: parent.left
            anchors.leftMargin: 16
            anchors.bottom: parent.bottom
            anchors.bottomMargin: Theme.spaceL
            text: root.size
            color: root.cleanable ? Theme.text : Theme.secondary
            Accessible.ignored: true
        }

        CaptionText {
            anchors.left: figure.right
            anchors.leftMargin: Theme.spaceS
            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceL
            anchors.baseline: figure.baseline
            horizontalAlignment: Text.AlignRight
            // Drops the word if it does not fit; the colour and the tick say the same.
            text: root.selected === "" || wording.advanceWidth < width ? root.amount : "✓ " + root.selected
            color: root.selected === "" ? Theme.tertiary : Theme.accent
            font.weight: root.selected === "" ? Font.Normal : Font.DemiBold
            Accessible.ignored: true

            TextMetrics {
                id: wording

                font.family: Theme.fontFamily
                font.pixelSize: Theme.captionSize
                font.weight: Font.DemiBold
                text: root.amount
            }
        }
    }
}

import QtQuick
import Orlen.App

/// A title followed by its rating, which wraps below if there is no room.
Flow {
    id: root

    required property string title
    property int size: Theme.titleSize
    property int weight: Font.Bold
    property int role: Accessible.Heading
    /// Maximum number of lines.
    property int lines: 1
    property ratingValue rating
    /// What the chip shows if not the rating; no chip if the name is empty.
    property string chipName: root.rating.name
    property string chipLabel: root.rating.label
    property string chipSymbol: root.rating.symbol

    spacing: Theme.spaceS

    TitleText {
        id: name

        width: Math.min(implicitWidth, root.width)
        height: Math.max(implicitHeight, root.chipName !== "" ? chip.height : 0)
        verticalAlignment: Text.AlignVCenter
        text: root.title
        wrapMode: root.lines > 1 ? Text.Wrap : Text.NoWrap
        maximumLineCount: root.lines
        font.pixelSize: root.size
        font.weight: root.weight
        font.letterSpacing: root.size === Theme.titleSize ? -0.3 : 0
        Accessible.role: root.role
    }

    Item {
        width: chip.width
        height: name.height
        visible: root.chipName !== ""

        RatingChip {
            id: chip

            anchors.verticalCenter: parent.verticalCenter
            name: root.chipName
            text: root.chipLabel
            symbol: root.chipSymbol
        }
    }
}

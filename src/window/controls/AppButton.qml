import QtQuick
import Orlen.App

/// A push button. Each view has at most one primary button.
Pressable {
    id: root

    property bool primary: false
    /// Has no background until hovered.
    property bool quiet: false
    property bool large: false
    property string symbol: ""

    readonly property color ink: !root.enabled ? Theme.tertiary
                                               : root.primary ? Theme.overAccent
                                                              : root.quiet ? Theme.accent : Theme.text

    // Rounded up, or the edges blur when the button is right-aligned.
    implicitWidth: Math.ceil(Math.max(implicitContentWidth + leftPadding + rightPadding, 72))
    implicitHeight: root.large ? Theme.mainControlHeight : Theme.controlHeight
    leftPadding: root.quiet ? 10 : 16
    rightPadding: root.quiet ? 10 : 16
    edgeWidth: root.primary || root.quiet ? 0 : 1
    fill: {
        if (root.primary)
            return !root.enabled ? Theme.track : root.down ? Theme.accentFillPressed
                                                           : root.hovered ? Theme.accentFillHover : Theme.accentFill;
        if (root.down || root.hovered)
            return Theme.hover;
        return root.quiet ? Theme.clear : Theme.inset;
    }

    contentItem: Item {
        implicitWidth: row.implicitWidth
        implicitHeight: row.implicitHeight

        Row {
            id: row

            anchors.centerIn: parent
            spacing: Theme.spaceS

            Symbol {
                anchors.verticalCenter: parent.verticalCenter
                visible: root.symbol !== ""
                name: root.symbol
                colour: root.ink
            }

            BodyText {
                anchors.verticalCenter: parent.verticalCenter
                text: root.text
                color: root.ink
                font.weight: Font.DemiBold
            }
        }
    }
}

import QtQuick
import Orlen.App

/// A group of keyboard shortcuts under a heading.
Column {
    id: root

    required property string title
    /// For each: `text`, what it does, and `keys`, a list of keys for each alternative.
    required property var shortcuts

    CaptionText {
        width: parent.width
        bottomPadding: Theme.spaceS
        text: root.title
        font.weight: Font.DemiBold
        Accessible.role: Accessible.Heading
        Accessible.name: text
    }

    Repeater {
        model: root.shortcuts

        Item {
            id: row

            required property int index
            required property var modelData
            readonly property var strokes: row.modelData.keys.map(stroke => stroke.join(" + "))

            width: root.width
            height: Theme.grown(36)
            Accessible.role: Accessible.ListItem
            Accessible.name: Strings.spoken([row.modelData.text].concat(row.strokes))

            Divider {
                width: parent.width
            }

            BodyText {
                anchors.left: parent.left
                anchors.right: strokes.left
                anchors.rightMargin: Theme.spaceM
                anchors.verticalCenter: parent.verticalCenter
                text: row.modelData.text
                Accessible.ignored: true
            }

            Row {
                id: strokes

                anchors.right: parent.right
                anchors.verticalCenter: parent.verticalCenter
                spacing: Theme.spaceS

                Repeater {
                    model: row.modelData.keys

                    Row {
                        id: stroke

                        required property var modelData

                        // Keys are pressed in this order, and written so in every language.
                        LayoutMirroring.enabled: false
                        spacing: Theme.spaceXs

                        Repeater {
                            model: stroke.modelData

                            KeyCap {
                                required property string modelData

                                text: modelData
                            }
                        }
                    }
                }
            }
        }
    }
}

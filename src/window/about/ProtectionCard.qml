import QtQuick
import QtQuick.Layouts
import Orlen.App

/// What is never moved, in as many columns as fit.
ColumnCard {
    id: root

    spacing: Theme.spaceM

    HeadlineText {
        width: parent.width
        text: Strings.alwaysLeftAlone
        Accessible.role: Accessible.Heading
    }

    GridLayout {
        width: parent.width
        columns: Math.max(1, Math.floor(width / (300 * Theme.textScale)))
        columnSpacing: Theme.spaceXl
        rowSpacing: Theme.spaceM

        Repeater {
            model: ProtectionListModel {}

            Column {
                id: row

                required property string label
                required property string reason

                Layout.fillWidth: true
                Layout.preferredWidth: 1
                Layout.alignment: Qt.AlignTop
                spacing: 2
                Accessible.role: Accessible.StaticText
                Accessible.name: Strings.spokenText(row.label, row.reason)

                BodyText {
                    width: parent.width
                    text: row.label
                    wrapMode: Text.WordWrap
                    font.weight: Font.DemiBold
                    Accessible.ignored: true
                }

                SmallText {
                    width: parent.width
                    text: row.reason
                    wrapMode: Text.WordWrap
                    elide: Text.ElideNone
                    Accessible.ignored: true
                }
            }
        }
    }
}

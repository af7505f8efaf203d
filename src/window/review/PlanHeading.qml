import QtQuick
import Orlen.App

/// The heading of a plan's section: checks all or none of its entries, shows how much is checked, and folds them.
ListRow {
    id: root

    required property string title
    required property string count
    required property string size
    required property string symbol
    required property color tone
    required property int checkState
    required property bool folded
    property bool isCurrent: false
    signal toggled
    signal folding
    signal pressed

    Accessible.role: Accessible.CheckBox
    Accessible.name: Strings.spoken([root.title, root.count, root.size])
    Accessible.checkable: true
    Accessible.checked: root.checkState === Qt.Checked
    Accessible.onToggleAction: root.toggled()
    Accessible.onPressAction: root.toggled()

    fill: root.isCurrent ? Theme.accentSoft : Theme.inset
    sideGap: 12
    topGap: 6

    TapHandler {
        onPressedChanged: if (pressed) root.pressed()
        onTapped: root.folding()
    }

    Item {
        anchors.fill: parent
        anchors.topMargin: Theme.spaceS

        CheckMark {
            id: check

            objectName: "check"
            anchors.verticalCenter: parent.verticalCenter
            anchors.left: parent.left
            anchors.leftMargin: 20
            tristate: true
            checkState: root.checkState
            nextCheckState: () => check.checkState
            focusPolicy: Qt.NoFocus
            Accessible.ignored: true
            onClicked: root.toggled()
        }

        Badge {
            id: badge

            anchors.verticalCenter: parent.verticalCenter
            anchors.left: check.right
            anchors.leftMargin: Theme.spaceS
            name: root.symbol
            tone: root.tone
            size: Theme.grown(28)
        }

        BodyText {
            id: heading

            /// Its distance from where the line begins.
            readonly property real start: 20 + check.width + Theme.spaceS + badge.width + Theme.spaceM

            anchors.left: badge.right
            anchors.leftMargin: Theme.spaceM
            anchors.verticalCenter: parent.verticalCenter
            width: Math.min(implicitWidth, parent.width - heading.start - selected.implicitWidth
                                           - total.implicitWidth - 100)
            text: root.title
            font.weight: Font.DemiBold
            Accessible.ignored: true
        }

        CaptionText {
            id: selected

            anchors.left: heading.right
            anchors.leftMargin: Theme.spaceS
            anchors.baseline: heading.baseline
            text: root.count
            Accessible.ignored: true
        }

        BodyText {
            id: total

            anchors.right: arrow.left
            anchors.rightMargin: Theme.spaceS
            anchors.verticalCenter: parent.verticalCenter
            text: root.size
            font.weight: Font.Bold
            Accessible.ignored: true
        }

        IconButton {
            id: arrow

            anchors.right: parent.right
            anchors.rightMargin: Theme.spaceL
            anchors.verticalCenter: parent.verticalCenter
            side: 28
            focusPolicy: Qt.NoFocus
            symbol: root.folded ? "chevron.right" : "chevron.down"
            symbolSize: 12
            text: root.folded ? Strings.showItems : Strings.hideItems
            onClicked: root.folding()
        }
    }
}

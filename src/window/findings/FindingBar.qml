import QtQuick
import Orlen.App

/// Above a finding's entries: how much is selected, the filter and the sort order.
Rectangle {
    id: root

    required property EntryListModel entries
    /// Whether one line is too narrow, so that there are two.
    readonly property bool isTall: rule.visible
                                   || all.width + label.implicitWidth + tools.implicitWidth + 72 > root.width

    function clearFilter() {
        tools.clear();
    }

    height: (root.isTall ? 2 : 1) * (Theme.controlHeight + 8) + 8
    color: Theme.inset

    Connections {
        target: root.entries

        function onFindingChanged() {
            tools.forget();
        }
    }

    Shortcut {
        sequences: [StandardKey.Find]
        enabled: root.visible
        onActivated: tools.focusField()
    }

    CheckMark {
        id: all

        objectName: "selectAll"
        anchors.left: parent.left
        anchors.leftMargin: 20
        y: 8 + (Theme.controlHeight - height) / 2
        visible: root.entries.header.cleanable
        enabled: root.entries.entryCount > 0
        tristate: true
        checkState: root.entries.shownState
        nextCheckState: () => all.checkState
        Accessible.name: Strings.selectAllShown
        onClicked: root.entries.toggleShown()
        Keys.onReturnPressed: root.entries.toggleShown()
    }

    SmallText {
        id: label

        readonly property real start: all.visible ? 20 + all.width + 8 : 24

        objectName: "selectedText"
        anchors.verticalCenter: all.verticalCenter
        anchors.left: parent.left
        anchors.leftMargin: label.start
        width: Math.min(implicitWidth, root.width - label.start - 16 - (rule.visible ? rule.width + 20 : 0))
        text: root.entries.selectedText
        color: Theme.text
        font.weight: Font.DemiBold
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    ChoiceField {
        id: rule

        objectName: "keepRule"
        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.verticalCenter: all.verticalCenter
        visible: root.entries.findingId === "duplicates" && root.entries.entryCount > 0
        label: Strings.whichToKeep
        model: rules.choices
        currentIndex: rules.current
        displayText: rules.currentText
        onActivated: index => rules.current = index

        KeepRuleModel {
            id: rules
        }
    }

    ListTools {
        id: tools

        anchors.right: parent.right
        anchors.rightMargin: 20
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceS
        fieldName: "entryFilter"
        // In the order of EntryListModel's keys.
        orders: [Strings.bySize, Strings.byName, Strings.byDate]
        current: root.entries.key
        reversed: root.entries.reversed
        onTextChanged: root.entries.filter = text
        onSortRequested: order => root.entries.sortBy(order)
    }
}

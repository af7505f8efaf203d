import QtQuick
import Orlen.App

/// Above a finding's entries: how much is selected, the filter and the sort order.
Rectangle {
    id: root

    required property EntryListModel entries
    /// Whether one line is too narrow, so that there are two.
    readonly property bool isTall: keeping.visible
                                   || all.width + label.implicitWidth + tools.implicitWidth + 72 > root.width

    /// Whether the choice of what is kept needs a line of its own.
    readonly property bool isKeepingApart: keeping.visible
                                           && label.start + label.implicitWidth + keeping.width + 40 > root.width
    readonly property int lineHeight: Theme.controlHeight + 8

    function clearFilter() {
        tools.clear();
    }

    height: (root.isKeepingApart ? 3 : root.isTall ? 2 : 1) * root.lineHeight + 8
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
        width: Math.min(implicitWidth, root.width - label.start - 16
                        - (keeping.visible && !root.isKeepingApart ? keeping.width + 20 : 0))
        text: root.entries.selectedText
        color: Theme.text
        font.weight: Font.DemiBold
        Accessible.role: Accessible.StaticText
        Accessible.name: text
    }

    Row {
        id: keeping

        anchors.right: parent.right
        anchors.rightMargin: 20
        y: all.y + (all.height - height) / 2 + (root.isKeepingApart ? root.lineHeight : 0)
        spacing: Theme.spaceS
        visible: root.entries.findingId === "duplicates"
                 && (root.entries.entryCount > 0 || always.isInUse)

        KeepFoldersButton {
            id: always

            objectName: "foldersThatStay"
            findingId: root.entries.findingId
        }

        ChoiceField {
            objectName: "keepRule"
            label: Strings.whichToKeep
            model: rules.choices
            currentIndex: rules.current
            displayText: rules.currentText
            onActivated: index => rules.current = index

            KeepRuleModel {
                id: rules
            }
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

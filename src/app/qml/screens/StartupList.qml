import QtQuick
import Orlen.App

/// What starts at login, grouped by whose logins it belongs to. As high as its rows: the page scrolls.
Card {
    id: root

    required property StartupListModel items

    implicitHeight: root.items.count > 0 ? list.height + 2 : root.items.loading ? placeholder.height + 16 : empty.height + 64

    ListView {
        id: list

        property bool pointed: false

        objectName: "startupList"
        x: 1
        y: 1
        width: parent.width - 2
        height: contentHeight
        interactive: false
        keyNavigationEnabled: true
        activeFocusOnTab: list.count > 0
        highlightMoveDuration: 0
        model: root.items
        section.property: "scope"
        section.delegate: Text {
            required property string section

            width: ListView.view.width
            height: Math.round(40 * Theme.textScale)
            leftPadding: 18
            bottomPadding: 2
            verticalAlignment: Text.AlignBottom
            text: section
            textFormat: Text.PlainText
            color: Theme.tertiary
            font.pixelSize: Theme.captionSize
            font.weight: Font.DemiBold
            Accessible.role: Accessible.Heading
            Accessible.name: section
        }
        Accessible.role: Accessible.List
        Accessible.name: Strings.startupItems

        onActiveFocusChanged: {
            if (!list.activeFocus)
                list.pointed = false;
        }
        Keys.onPressed: event => {
            list.pointed = false;
            event.accepted = false;
        }
        Keys.onSpacePressed: root.items.toggle(list.currentIndex)
        Keys.onReturnPressed: root.items.toggle(list.currentIndex)
        Keys.onEnterPressed: root.items.toggle(list.currentIndex)

        delegate: StartupRow {
            id: row

            required property int index

            width: ListView.view.width
            lineShown: ListView.previousSection === ListView.section
            focusShown: ListView.isCurrentItem && list.activeFocus && !list.pointed
            onToggled: {
                list.forceActiveFocus(Qt.MouseFocusReason);
                list.pointed = true;
                list.currentIndex = row.index;
                root.items.toggle(row.index);
            }
        }
    }

    PlaceholderRows {
        id: placeholder

        y: 8
        width: parent.width
        rows: 4
        visible: root.items.count === 0 && root.items.loading
    }

    EmptyState {
        id: empty

        anchors.centerIn: parent
        width: parent.width - 48
        visible: root.items.count === 0 && !root.items.loading
        symbol: "power.circle.fill"
        tone: "#e5484d"
        text: Strings.noLaunchAgents
    }
}

import QtQuick
import Orlen.App

/// Disk Map: what takes up space in a folder, as a map or a list.
FocusScope {
    id: root

    required property MainView view
    property bool asList: false
    readonly property bool showsRing: surface.showsRing && !root.asList

    DiskMapView {
        id: theMap

        shown: root.enabled
        viewWidth: surface.mapWidth
        viewHeight: surface.mapHeight
    }

    PageHeader {
        id: header

        x: Theme.pageMargin
        y: Theme.pageMargin
        width: root.width - 2 * Theme.pageMargin
        title: Screens.title(Screens.DiskMap)
        subtitle: Strings.diskMapLead
        isBrief: Theme.isLow(root.height)
    }

    DiskMapBar {
        id: bar

        x: Theme.pageMargin
        y: header.y + header.height + 16
        width: root.width - 2 * Theme.pageMargin
        map: theMap
        asList: root.asList
        onListRequested: wanted => root.asList = wanted
    }

    MapLegend {
        id: legend

        x: Theme.pageMargin
        y: bar.y + bar.height + Theme.spaceS
        width: root.width - 2 * Theme.pageMargin
        visible: !root.asList
        colours: theMap.colours
    }

    Item {
        anchors.fill: parent
        anchors.leftMargin: Theme.pageMargin
        anchors.rightMargin: Theme.pageMargin
        anchors.topMargin: legend.visible ? legend.y + legend.height + Theme.spaceS : bar.y + bar.height + Theme.spaceM
        anchors.bottomMargin: status.height + 28

        // Keys shared by the map and the list.
        Keys.onPressed: event => {
            event.accepted = true;
            switch (event.key) {
            case Qt.Key_Home:
                theMap.currentRow = 0;
                break;
            case Qt.Key_Return:
            case Qt.Key_Enter:
            case Qt.Key_Space:
                theMap.open(theMap.currentRow);
                break;
            case Qt.Key_Menu:
                root.openMenu();
                break;
            case Qt.Key_F10:
                event.accepted = event.modifiers & Qt.ShiftModifier;
                if (event.accepted)
                    root.openMenu();
                break;
            default:
                event.accepted = false;
            }
        }

        Rectangle {
            anchors.fill: parent
            radius: Theme.cardRadius
            color: Theme.inset
            opacity: theMap.loading ? 1 : 0
            visible: opacity > 0

            BodyText {
                anchors.centerIn: parent
                text: Strings.measuring
                color: Theme.secondary
                Accessible.ignored: !theMap.loading
            }

            Ease on opacity {
                duration: Theme.screenDuration
            }
        }

        DiskMapSurface {
            id: surface

            anchors.fill: parent
            visible: !root.asList && !theMap.empty
            map: theMap
            onMenuRequested: (row, x, y) => {
                theMap.currentRow = row;
                menu.openAt(theMap, row, surface, x, y);
            }
        }

        Card {
            anchors.fill: parent
            visible: root.asList && !theMap.empty && !theMap.loading

            DiskMapList {
                id: list

                anchors.fill: parent
                anchors.margins: 1
                map: theMap
                focus: root.asList
                onMenuRequested: (row, item, x, y) => menu.openAt(theMap, row, item, x, y)
            }
        }

        Card {
            anchors.fill: parent
            visible: theMap.empty

            EmptyState {
                anchors.centerIn: parent
                width: parent.width - 48
                symbol: theMap.locked ? "lock.fill" : "folder.fill"
                tone: Theme.diskMapTone
                text: theMap.locked ? Strings.lockedMap : Strings.emptyMap
                action: theMap.atStart ? "" : Strings.goUp
                onTriggered: theMap.up()
            }
        }
    }

    SmallText {
        id: status

        readonly property int row: theMap.hoverRow >= 0 && !root.asList ? theMap.hoverRow
                                                                       : root.showsRing ? theMap.currentRow : -1

        readonly property DiskMapTile tile: surface.tileAt(status.row)

        objectName: "diskMapStatus"
        x: Theme.pageMargin
        anchors.bottom: parent.bottom
        anchors.bottomMargin: Theme.spaceL
        width: root.width - 2 * Theme.pageMargin
        text: theMap.loading ? Strings.measuring : Words.facts([theMap.describe(status.row), status.tile?.fact ?? ""])
        elide: Text.ElideMiddle
    }

    DropArea {
        anchors.fill: parent
        keys: ["text/uri-list"]
        onDropped: drop => drop.accepted = theMap.drop(drop.urls)
    }

    RowMenu {
        id: menu

        onPreviewRequested: row => look.show(menu.path, theMap.sizeAt(row))
    }

    PreviewSheet {
        id: look
    }

    Shortcut {
        enabled: root.enabled
        sequence: "F5"
        onActivated: theMap.load()
    }

    Keys.onPressed: event => {
        event.accepted = event.key === Qt.Key_Backspace;
        if (event.accepted)
            theMap.up();
    }

    Connections {
        target: root.view.navigation
        function onFolderRequested() {
            root.show(root.view.navigation.takeFolder());
        }
    }

    Component.onCompleted: {
        theMap.load();
        root.show(root.view.navigation.takeFolder());
    }

    /// The menu of the current tile or row, for the keyboard.
    function openMenu() {
        if (theMap.currentRow < 0)
            return;
        if (root.asList)
            menu.openBelow(theMap, theMap.currentRow, list.currentItem);
        else
            menu.openIn(theMap, theMap.currentRow, surface.tileAt(theMap.currentRow));
    }

    function show(folder: string) {
        if (folder !== "")
            theMap.show(folder);
    }
}

import QtQuick
import Orlen.App

/// The largest folders of a category, and all of them on request.
Column {
    id: root

    required property CategoryModel category
    /// Emitted when the keyboard reaches a row.
    signal reached(row: Item)

    readonly property int few: 5
    property bool all: false

    Accessible.role: Accessible.List
    Accessible.name: Strings.largestFolders

    RowMenu {
        id: menu

        onPreviewRequested: look.show(menu.path, "")
    }

    PreviewSheet {
        id: look
    }

    HeadlineText {
        width: parent.width
        bottomPadding: Theme.spaceXs
        visible: root.category.folders.count > 0 || root.category.measuring
        text: Strings.largestFolders
    }

    SmallText {
        width: parent.width
        visible: root.category.measuring
        text: Strings.measuring
        color: Theme.tertiary
    }

    Repeater {
        model: root.category.folders

        CategoryFolderRow {
            id: row

            required property int index

            objectName: "categoryFolder-" + row.index
            width: root.width
            visible: root.all || row.index < root.few || !row.isSeen
            tone: root.category.colour
            onClicked: root.category.openFolder(row.index)
            onMenuRequested: (x, y) => {
                row.forceActiveFocus(Qt.MouseFocusReason);
                menu.openAt(root.category.folders, row.index, row, x, y);
            }
            onMenuKeyPressed: menu.openBelow(root.category.folders, row.index, row)
            onVisualFocusChanged: {
                if (row.visualFocus)
                    root.reached(row);
            }
        }
    }

    AppButton {
        anchors.left: parent.left
        visible: root.category.folders.count > root.few + 1
        quiet: true
        text: root.all ? Strings.showFewer : Strings.showAllNumber(root.category.folders.count)
        onClicked: root.all = !root.all
    }

    Connections {
        target: root.category
        function onOpenChanged() {
            root.all = false;
        }
    }
}

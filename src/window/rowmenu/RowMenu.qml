import QtQuick
import Orlen.App

/// The menu of a row of any list, opened by a right click or the keyboard.
PopupMenu {
    id: root

    property int row: -1
    /// Of the row's item, for a preview.
    readonly property string path: actions.path
    /// Asks for a preview of the row.
    signal previewRequested(row: int)

    /// Opens at a place of the row's item.
    function openAt(list: RowsModel, row: int, item: Item, x: real, y: real) {
        root.row = row;
        if (!actions.setSubject(list, row))
            return;
        root.currentIndex = -1;
        root.popup(item, x, y);
    }

    /// Opens below the row, for the keyboard.
    function openBelow(list: RowsModel, row: int, item: Item) {
        root.openAt(list, row, item, Theme.mirrored ? item.width - root.width - Theme.spaceXl : Theme.spaceXl,
                    item.height - Theme.spaceXs);
        root.currentIndex = 0;
    }

    /// Opens in the middle of a tile, for the keyboard.
    function openIn(list: RowsModel, row: int, item: Item) {
        root.openAt(list, row, item, item.width / 2, item.height / 2);
        root.currentIndex = 0;
    }

    function label(action: int, folder: string): string {
        switch (action) {
        case RowMenuModel.Preview:
            return Strings.preview;
        case RowMenuModel.Reveal:
            return Strings.reveal;
        case RowMenuModel.CopyPath:
            return Strings.copyPath;
        case RowMenuModel.TickFolder:
            return Strings.tickFolder;
        case RowMenuModel.KeepFolder:
            return Strings.keepFolder(folder);
        case RowMenuModel.AlwaysKeep:
            return Strings.alwaysKeep(folder);
        case RowMenuModel.MoveToTrash:
            return Strings.moveToTrash;
        case RowMenuModel.ExcludePath:
            return Strings.neverOfferThis;
        case RowMenuModel.ExcludeFolder:
            return Strings.neverOfferFolder;
        default:
            return Strings.neverOfferNamed(actions.name);
        }
    }

    function symbol(action: int): string {
        switch (action) {
        case RowMenuModel.Preview:
            return "eye";
        case RowMenuModel.Reveal:
            return "reveal";
        case RowMenuModel.CopyPath:
            return "copy";
        case RowMenuModel.TickFolder:
            return "checkmark";
        case RowMenuModel.MoveToTrash:
            return actions.refusal === "" ? "trash" : "lock.fill";
        default:
            return action === RowMenuModel.ExcludePath ? "hand.raised.fill" : "";
        }
    }

    implicitWidth: Theme.widened(330)
    title: Strings.actionsFor(actions.name)

    RowMenuModel {
        id: actions
    }

    Instantiator {
        model: actions

        PopupMenuItem {
            required property int choice
            required property string folder
            required property string place

            text: root.label(choice, folder)
            symbol: root.symbol(choice)
            refusal: choice === RowMenuModel.MoveToTrash ? actions.refusal : ""
            objectName: folder === "" ? "menu-" + choice : "menu-" + choice + "-" + folder
            onTriggered: {
                if (choice === RowMenuModel.Preview)
                    root.previewRequested(root.row);
                else
                    actions.choose(choice, place);
            }
        }

        onObjectAdded: (index, object) => root.insertItem(index, object as PopupMenuItem)
        onObjectRemoved: (index, object) => root.removeItem(object as PopupMenuItem)
    }
}

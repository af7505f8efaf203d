import QtQuick
import Orlen.App

/// Says how many folders there are whose files no set offers, and opens the choice of them.
MenuButton {
    id: root

    property alias findingId: folders.findingId
    readonly property bool isInUse: folders.chosenCount > 0

    menu: choices
    text: root.isInUse ? Strings.countOfFoldersThatStay(folders.chosenCount) : Strings.foldersThatStay
    onClicked: {
        folders.refresh();
        root.openMenu(0);
    }

    KeepFoldersModel {
        id: folders
    }

    PopupMenu {
        id: choices

        implicitWidth: Theme.widened(330)
        title: Strings.foldersThatStay

        Instantiator {
            model: folders

            PopupMenuItem {
                required property int index
                required property string place
                required property bool chosen

                objectName: "stays-" + place
                symbol: chosen ? "checkmark" : ""
                text: place
                Accessible.checkable: true
                Accessible.checked: chosen
                onTriggered: folders.toggle(index)
            }

            onObjectAdded: (index, object) => choices.insertItem(index, object as PopupMenuItem)
            onObjectRemoved: (index, object) => choices.removeItem(object as PopupMenuItem)
        }
    }
}

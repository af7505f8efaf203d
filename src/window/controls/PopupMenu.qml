import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A menu of `PopupMenuItem`s. The focus returns to where it was.
T.Menu {
    id: root

    implicitHeight: contentHeight + topPadding + bottomPadding
    margins: Theme.spaceS
    padding: Theme.spaceXs
    modal: true
    dim: false

    contentItem: ListView {
        implicitHeight: contentHeight
        model: root.contentModel
        currentIndex: root.currentIndex
        clip: true
        interactive: contentHeight > height
        boundsBehavior: Flickable.StopAtBounds
        Accessible.role: Accessible.PopupMenu
        Accessible.name: root.title
    }

    background: Rectangle {
        radius: Theme.controlRadius + Theme.spaceXs
        color: Theme.raised
        border.width: 1
        border.color: Theme.tertiary
    }
}

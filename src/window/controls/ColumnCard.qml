import QtQuick
import Orlen.App

/// A card with its content in one column, as high as that takes.
Card {
    id: root

    property alias spacing: column.spacing
    default property alias content: column.data

    implicitHeight: column.height + 2 * Theme.cardMargin

    Column {
        id: column

        x: Theme.cardMargin
        y: Theme.cardMargin
        width: root.width - 2 * Theme.cardMargin
    }
}

import QtQuick
import Orlen.App

/// A card with its content in a column.
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

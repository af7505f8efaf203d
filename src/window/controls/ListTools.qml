import QtQuick
import Orlen.App

/// Filters and sorts a list: a field, and a button for each order.
Flow {
    id: root

    /// Texts of the orders, which are numbered as they stand here.
    required property list<string> orders
    required property int current
    required property bool reversed
    property string fieldName: "filter"
    readonly property alias text: field.text
    signal sortRequested(order: int)

    /// Shows everything, and is ready for another filter.
    function clear() {
        field.clear();
        field.forceActiveFocus(Qt.OtherFocusReason);
    }

    function forget() {
        field.clear();
    }

    function focusField() {
        field.forceActiveFocus(Qt.ShortcutFocusReason);
    }

    spacing: 2

    SearchField {
        id: field

        objectName: root.fieldName
        width: Theme.widened(170)
        placeholderText: Strings.filter
        fill: Theme.card
    }

    Item {
        width: 8
        height: 1
    }

    Repeater {
        model: root.orders

        SortButton {
            required property string modelData
            required property int index

            objectName: root.fieldName + "-" + index
            text: modelData
            active: root.current === index
            reversed: root.reversed
            onClicked: root.sortRequested(index)
        }
    }
}

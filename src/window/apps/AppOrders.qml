import QtQuick
import Orlen.App

/// Which applications are listed, and in which order.
Flow {
    id: root

    required property AppOrderModel ordered

    spacing: Theme.spaceXs

    ChoiceField {
        objectName: "appSource"
        implicitHeight: Theme.controlHeight
        visible: root.ordered.sources.length > 2
        label: Strings.appSource
        model: root.ordered.sources
        currentIndex: root.ordered.source
        displayText: root.ordered.sources[root.ordered.source]
        onActivated: index => root.ordered.source = index
    }

    Repeater {
        // In the order of AppOrderModel's orders.
        model: [Strings.byName, Strings.bySize, Strings.byUse]

        SortButton {
            required property string modelData
            required property int index

            objectName: "appOrder-" + index
            text: modelData
            active: root.ordered.order === index
            onClicked: root.ordered.order = index
        }
    }
}

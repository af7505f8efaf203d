import QtQuick
import Orlen.App

/// The choice of the size from which a file counts as large.
Row {
    id: root

    required property HomeModel home

    spacing: Theme.spaceS

    SmallText {
        anchors.verticalCenter: parent.verticalCenter
        text: Strings.largeFilesFrom
        Accessible.ignored: true
    }

    ChoiceField {
        objectName: "largeThreshold"
        anchors.verticalCenter: parent.verticalCenter
        label: Strings.largeFilesFrom
        model: root.home.thresholds
        currentIndex: root.home.threshold
        displayText: root.home.thresholdText
        onActivated: index => root.home.threshold = index
    }
}

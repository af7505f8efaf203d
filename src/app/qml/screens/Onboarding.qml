import QtQuick
import Orlen.App

/// What a new user sees once.
Item {
    id: root

    signal finished

    AppButton {
        anchors.centerIn: parent
        primary: true
        text: Strings.continueWithoutIt
        onClicked: root.finished()
    }
}

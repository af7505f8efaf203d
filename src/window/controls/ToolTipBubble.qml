import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A tool tip.
T.ToolTip {
    id: root

    required property bool shown

    y: parent ? -implicitHeight - 6 : 0
    x: parent ? (parent.width - implicitWidth) / 2 : 0
    visible: root.shown
    delay: 600
    margins: Theme.spaceS
    padding: 8
    implicitWidth: implicitContentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: CaptionText {
        text: root.text
        wrapMode: Text.Wrap
        color: Theme.window
    }

    background: Rectangle {
        radius: 6
        color: Theme.text
    }
}

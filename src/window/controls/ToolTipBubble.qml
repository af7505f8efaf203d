import QtQuick
import QtQuick.Templates as T
import Orlen.App

/// A tool tip.
T.ToolTip {
    id: root

    required property bool shown
    /// Its width is at most this; the text wraps then.
    property real widest: 10000

    y: parent ? -implicitHeight - 6 : 0
    x: parent ? (parent.width - implicitWidth) / 2 : 0
    visible: root.shown
    delay: 600
    margins: Theme.spaceS
    padding: 8
    contentWidth: Math.min(measure.implicitWidth, root.widest - leftPadding - rightPadding)
    implicitWidth: contentWidth + leftPadding + rightPadding
    implicitHeight: implicitContentHeight + topPadding + bottomPadding
    closePolicy: T.Popup.CloseOnEscape | T.Popup.CloseOnPressOutsideParent

    contentItem: CaptionText {
        text: root.text
        wrapMode: Text.Wrap
        color: Theme.window

        // Its width does not depend on that of what is shown.
        CaptionText {
            id: measure

            visible: false
            text: root.text
        }
    }

    background: Rectangle {
        radius: 6
        color: Theme.text
    }
}

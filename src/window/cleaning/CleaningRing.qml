import QtQuick
import Orlen.App

/// The progress of a clean-up or of undoing it, then a sign of how it ended.
Item {
    id: root

    required property real value
    /// What a screen reader is told of the progress.
    required property string progressText
    required property string symbol
    required property bool finished
    /// Whether anything was moved.
    required property bool successful
    property real swell: root.finished ? 1 : 0

    width: 92
    height: 92

    Spring on swell {
        response: 0.6
        damping: 0.8
    }

    ProgressRing {
        anchors.fill: parent
        thickness: 8
        value: root.value
        tone: root.finished && root.successful ? Theme.safeBase : Theme.accent
        track: Theme.track
        scale: 1 + 0.06 * root.swell * (1 - root.swell) * 4
        Accessible.role: Accessible.ProgressBar
        Accessible.name: root.progressText

        Spring on value {
            response: 0.6
            damping: 0.8
        }
    }

    Symbol {
        anchors.centerIn: parent
        name: root.symbol
        size: 30
        grows: false
        opacity: 1 - Math.min(1, root.swell * 2)
    }

    Symbol {
        anchors.centerIn: parent
        name: root.successful ? "checkmark" : "exclamationmark.triangle.fill"
        colour: root.successful ? Theme.safeText : Theme.reviewText
        size: 40
        grows: false
        scale: root.swell
        opacity: Math.min(1, Math.max(0, root.swell))
    }
}

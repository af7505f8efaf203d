import QtQuick
import Orlen.App

/// A centred line sized to fit inside a ring; two if it is too long to be read on one.
BodyText {
    id: root

    /// Maximum size in pixels, and as a share of the width.
    required property int most
    required property real share

    readonly property bool isTooLong: smallest.advanceWidth > root.width

    horizontalAlignment: Text.AlignHCenter
    elide: Text.ElideNone
    wrapMode: root.isTooLong ? Text.WordWrap : Text.NoWrap
    fontSizeMode: root.isTooLong ? Text.FixedSize : Text.HorizontalFit
    minimumPixelSize: 10
    font.pixelSize: Math.max(10, Math.min(root.most, root.width * root.share))

    TextMetrics {
        id: smallest

        font.family: Theme.fontFamily
        font.pixelSize: root.minimumPixelSize
        font.weight: root.font.weight
        text: root.text
    }
}

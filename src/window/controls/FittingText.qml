import QtQuick
import Orlen.App

/// A line in the middle of a ring, as large as has room there.
BodyText {
    id: root

    /// Pixels at most, and of the line's width.
    required property int most
    required property real share

    horizontalAlignment: Text.AlignHCenter
    elide: Text.ElideNone
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 10
    font.pixelSize: Math.max(10, Math.min(root.most, root.width * root.share))
}

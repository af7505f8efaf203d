import QtQuick
import Orlen.App

/// A centred line sized to fit inside a ring.
BodyText {
    id: root

    /// Maximum size in pixels, and as a share of the width.
    required property int most
    required property real share

    horizontalAlignment: Text.AlignHCenter
    elide: Text.ElideNone
    fontSizeMode: Text.HorizontalFit
    minimumPixelSize: 10
    font.pixelSize: Math.max(10, Math.min(root.most, root.width * root.share))
}

import QtQuick
import Orlen.App

/// The heading of a screen or a sheet.
BodyText {
    id: root

    font.pixelSize: Theme.titleSize
    font.weight: Font.Bold
    font.letterSpacing: -0.3
    Accessible.role: Accessible.Heading
    Accessible.name: root.text
}

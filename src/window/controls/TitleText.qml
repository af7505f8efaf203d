import QtQuick
import Orlen.App

/// The title of a screen or sheet.
BodyText {
    id: root

    font.pixelSize: Theme.titleSize
    font.weight: Font.Bold
    font.letterSpacing: -0.3
    Accessible.role: Accessible.Heading
    Accessible.name: root.text
}

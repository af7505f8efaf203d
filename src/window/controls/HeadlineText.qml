import QtQuick
import Orlen.App

/// The heading of a section.
BodyText {
    id: root

    font.pixelSize: Theme.headlineSize
    font.weight: Font.DemiBold
    Accessible.role: Accessible.Heading
    Accessible.name: root.text
}

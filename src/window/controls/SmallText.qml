import Orlen.App

/// What stands below or beside the text that counts.
BodyText {
    color: Theme.secondary
    font.pixelSize: Theme.smallSize
}

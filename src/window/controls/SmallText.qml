import Orlen.App

/// Secondary text.
BodyText {
    color: Theme.secondary
    font.pixelSize: Theme.smallSize
}

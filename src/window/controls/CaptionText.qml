import Orlen.App

/// The smallest text: places, dates and remarks.
BodyText {
    color: Theme.tertiary
    font.pixelSize: Theme.captionSize
}

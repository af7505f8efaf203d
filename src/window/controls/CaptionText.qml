import Orlen.App

/// The smallest text, for paths, dates and notes.
BodyText {
    color: Theme.tertiary
    font.pixelSize: Theme.captionSize
}

import Orlen.App

/// The advice about a finding or an entry.
Pill {
    id: root

    property ratingValue rating
    /// Raw value of the rating that sets the colours; hidden if empty.
    property string name: root.rating.name

    text: root.rating.label
    symbol: root.rating.symbol
    ink: Theme.ratingText(root.name)
    color: Theme.tint(Theme.ratingBase(root.name), Theme.chipOpacity)
    visible: root.name !== ""
}

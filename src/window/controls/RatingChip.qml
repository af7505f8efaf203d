import Orlen.App

/// The advice about a finding or an entry.
Pill {
    id: root

    /// Raw value: "safe", "review", "keep".
    required property string rating
    required property string label

    text: root.label
    ink: Theme.ratingText(root.rating)
    color: Theme.tint(Theme.ratingBase(root.rating), Theme.chipOpacity)
    visible: root.rating !== ""
}

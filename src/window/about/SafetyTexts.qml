import QtQuick
import Orlen.App

/// How Orlen works, in sections.
QtObject {
    readonly property var sections: [
        {
            symbol: "lock.fill",
            title: Words.message("Private by design"),
            // TRANSLATORS: Instead of "Mac" say "computer", and instead of "Application Support/Orlen" write {folder},
            // which is the true place.
            body: Words.message("Scanning, photo analysis, ratings, Ask Orlen and predictions all run on this Mac. Orlen makes no network calls, has no accounts and uploads nothing. Scan history is a small file in Application Support/Orlen that you can delete any time.", { folder: Words.dataFolder })
        },
        {
            symbol: "trash.fill",
            title: Strings.neverDeleted,
            body: Words.message("Orlen never deletes anything permanently. It uses the system's Move to Trash, shows you the full list with checkboxes and Quick Look first, and records each clean-up in History so you can restore it.")
        },
        {
            symbol: "checkmark.shield.fill",
            title: Words.message("Places it will not touch"),
            body: Words.message("The system volume and anything under /System, /usr or /bin; your Photos library; the Mail database; and iCloud Drive and its placeholder files.")
        },
        {
            symbol: "eye.fill",
            title: Words.message("Ratings are suggestions"),
            body: Words.message("Safe, Review and Keep come from a table of known locations plus on-device language analysis of file names. They can be wrong. Keep is a warning (for example an invoice, tax or contract name), not a lock. You decide what moves.")
        },
        {
            symbol: "power.circle.fill",
            title: Words.message("Nothing in the background"),
            body: Words.message("Orlen only works while it's open. The menu bar item shows free space and does nothing else. It hides nothing: every file it will touch is listed first.")
        },
        {
            symbol: "internaldrive.fill",
            title: Words.message("Space comes back later"),
            body: Words.message("Moving items to the Trash frees space only once you empty the Trash. Copies that share their blocks and snapshots may hold space longer.")
        }
    ]
}

pragma Singleton
import QtQuick

/// Every sentence of the window that is not made by a model, by the screen that shows it.
QtObject {
    // Common
    readonly property string appName: "Orlen"
    readonly property string free: "%1 free"
    readonly property string freeOf: "free of %1"
    readonly property string usedSpace: "Used space"
    readonly property string screens: "Screens"
    readonly property string clear: "Clear"
    readonly property string close: "Close"
    readonly property string cancel: "Cancel"
    readonly property string done: "Done"
    readonly property string copy: "Copy"
    readonly property string reveal: "Reveal in Finder"
    readonly property string preview: "Quick Look"
    readonly property string showResults: "Show last results"
    readonly property string trashPromise: "You'll see the full list first. Everything moves to the Trash and can be restored from History."

    // Onboarding
    readonly property string welcomeTitle: "Welcome to Orlen"
    readonly property string welcomeSubtitle: "A calm, careful way to see what's filling your Mac."
    readonly property var promises: [
        { symbol: "lock.fill", title: "Everything stays on this Mac", body: "All analysis and AI run on your device. Orlen makes no network calls and uploads nothing." },
        { symbol: "trash.fill", title: "Nothing is permanently deleted", body: "Orlen only moves files to the Trash, after showing you the full list. History lets you put them back." },
        { symbol: "hand.raised.fill", title: "Honest about its limits", body: "Safe, Review and Keep are suggestions, not guarantees. Orlen doesn't run in the background or hide anything." }
    ]
    readonly property string accessTitle: "Full Disk Access (optional)"
    readonly property string accessBody: "macOS protects some folders, such as Mail downloads and parts of Library. Granting Full Disk Access lets Orlen see them. Without it, Orlen still works and simply scans what macOS allows."
    readonly property string openPrivacySettings: "Open Privacy Settings"
    readonly property string continueWithoutIt: "Continue without it"
    readonly property string continueOn: "Continue"
    readonly property string accessHint: "You may need to add and restart Orlen (or the app you launch it from) after enabling access."
    readonly property string accessOn: "Full Disk Access is on"

    // Smart Scan
    readonly property string homeLead: "Run a Smart Scan to see what you can safely free"
    readonly property string lookingAtStorage: "Looking at your storage…"
    readonly property string startScan: "Start Smart Scan"
    readonly property string scanAgain: "Scan again"
    readonly property string homeFooter: "Ratings are suggestions. Orlen only runs while it's open, uploads nothing, hides nothing, and only moves files to the Trash."
    readonly property string filesExamined: "%1 files examined"
    readonly property string scanningWithoutAccess: "Full Disk Access isn't granted, so Orlen is scanning only what macOS allows."
    readonly property string safelyFree: "You can safely free %1"
    readonly property string nothingSafe: "Nothing is rated Safe right now"
    readonly property string reviewInTotal: "%1 you could review in total"
    readonly property string scannedWithoutAccess: "Full Disk Access isn't granted, so some folders (such as Mail downloads) weren't scanned."
    readonly property string resultsFooter: "Safe, Review and Keep are suggestions from rules and on-device analysis. They can be wrong, so look before you clean. Nothing is permanently deleted: items move to the Trash and can be restored from History."
    readonly property string reviewAndClean: "Review & Clean…"

    // Finding, review and clean-up
    readonly property string nothingLeft: "Nothing left here."
    readonly property string reviewTitle: "Review before cleaning"
    readonly property string reviewLead: "%1 items will be moved to the Trash. Nothing is permanently deleted, and you can restore them from History. Uncheck anything you want to keep."
    readonly property string moveToTrash: "Move to Trash"
    readonly property string movingToTrash: "Moving to the Trash…"
    readonly property string movedToTrash: "%1 moved to the Trash"
    readonly property string couldNotBeMoved: "%1 couldn't be moved"
    readonly property string nothingDeleted: "Nothing was deleted. The space comes back when you empty the Trash in Finder, and you can put everything back from History until then."

    // Smart Photos
    readonly property string photosTitle: "Smart Photo Cleanup"
    readonly property string photosLead: "Screenshots, receipts, memes, blurry shots and near-duplicates in Pictures, Desktop, Downloads and Documents. Your Photos library is never touched."
    readonly property string photosBeforeScan: "Run a Smart Scan to find photo clean-ups."
    readonly property string goToSmartScan: "Go to Smart Scan"
    readonly property string noPhotos: "No photo clean-ups were found."
    readonly property string photosFooter: "Photos are analysed on this Mac with Apple's Vision framework: feature prints find similar shots, an image classifier spots screenshots and receipts, and a sharpness score picks the best photo of each set."

    // Ask Orlen
    readonly property string askPlaceholder: "Ask about your storage…"
    readonly property string tryOneOfThese: "Try one of these"
    readonly property string modelFooter: "Foundation Models · on device"
    readonly property string matcherFooter: "Built-in matcher · on device"

    // Predict
    readonly property string predictLead: "How fast each kind of data is growing, learned from your past scans."
    readonly property string growthByCategory: "Growth by category"
    readonly property string snapshotsStored: "%1 are stored on this Mac in Application Support/Orlen. A snapshot is saved after each Smart Scan, and when Orlen opens if the last one is over 12 hours old. Orlen does not run in the background, so predictions improve the more you use it. They are estimates from a straight-line fit, not promises."

    // Disk Map
    readonly property string diskMapLead: "Click a folder to zoom in. Right-click anything to reveal it in Finder. Pinch out to go back up."

    // Applications
    readonly property string apps: "Applications"
    readonly property string appsLead: "Uninstall an app with its leftovers."
    readonly property string reviewAndUninstall: "Review & Uninstall…"
    readonly property string noLeftovers: "No leftovers found."
    readonly property string leftoversFound: "Leftovers found by bundle identifier (%1)"
    readonly property string appleApp: "This is an Apple app. Make sure you really want to remove it."

    readonly property string searchApps: "Search applications"
    readonly property string sortBy: "Sort by %1"
    readonly property string byName: "Name"
    readonly property string bySize: "Size"
    readonly property string noApps: "No applications found."
    readonly property string noAppMatches: "No application matches “%1”."
    readonly property string lookingForLeftovers: "Looking for leftovers…"
    readonly property string otherCopy: "Another copy is installed"
    readonly property string otherCopyNote: "It still uses the files of this one, so they stay."
    readonly property string copyCommand: "Copy command"
    readonly property string copied: "Copied"

    // Startup Items
    readonly property string startup: "Startup Items"
    readonly property string startupLead: "What starts when you log in. Disabling takes effect now and stays off at the next login."
    readonly property string noLaunchAgents: "No launch agents found."
    readonly property string loginItemsLead: "macOS doesn't let apps list other apps' login items directly. Press the button to ask System Events (macOS will ask your permission), or manage them in System Settings."
    readonly property string showLoginItems: "Show Login Items"
    readonly property string openLoginItemsSettings: "Open Login Items Settings"
    readonly property string loginItemsFailed: "Couldn't read login items."
    readonly property string openAtLogin: "Open Orlen at login"
    readonly property string openAtLoginNote: "Off by default. If turned on, Orlen opens a normal visible window at login; it still does nothing in the background."
    readonly property string openAtLoginFailed: "macOS couldn't change this (it works for the packaged app): %1"

    readonly property string reload: "Reload"
    readonly property string startupItems: "Startup items"
    readonly property string partOfDesktop: "Part of your desktop"
    readonly property string loginItems: "Login items"
    readonly property string noLoginItems: "No login items."
    readonly property string settingsFailed: "The login items settings couldn't be opened."

    // History
    readonly property string historyLead: "Every clean-up, with a way back. Restore moves items out of the Trash to where they were."
    readonly property string nothingCleaned: "Nothing cleaned yet."

    // How Orlen Works
    readonly property string safetyLead: "What it does, what it never does, and how far to trust it."
    readonly property var safetySections: [
        { symbol: "lock.fill", title: "Private by design", body: "Scanning, photo analysis, ratings, Ask Orlen and predictions all run on this Mac. Orlen makes no network calls, has no accounts and uploads nothing. Scan history is a small file in Application Support/Orlen that you can delete any time." },
        { symbol: "trash.fill", title: "Nothing is permanently deleted", body: "Orlen never deletes anything permanently. It uses the system's Move to Trash, shows you the full list with checkboxes and Quick Look first, and records each clean-up in History so you can restore it." },
        { symbol: "checkmark.shield.fill", title: "Places it will not touch", body: "The system volume and anything under /System, /usr or /bin; your Photos library; the Mail database; and iCloud Drive and its placeholder files." },
        { symbol: "eye.fill", title: "Ratings are suggestions", body: "Safe, Review and Keep come from a table of known locations plus on-device language analysis of file names. They can be wrong. Keep is a warning (for example an invoice, tax or contract name), not a lock. You decide what moves." },
        { symbol: "power.circle.fill", title: "Nothing in the background", body: "Orlen only works while it's open. The menu bar item shows free space and does nothing else. It hides nothing: every file it will touch is listed first." },
        { symbol: "internaldrive.fill", title: "Full Disk Access", body: "Optional. Without it Orlen scans only what macOS allows and says so. Moving items to the Trash frees space only once you empty the Trash in Finder." }
    ]

    // Keyboard shortcuts
    readonly property string shortcutsTitle: "Keyboard shortcuts"
}

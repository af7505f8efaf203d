pragma Singleton
import QtQuick

/// Every sentence of the window that no model provides, grouped by screen.
QtObject {
    // Common
    readonly property string appName: "Orlen"
    readonly property string free: "%1 free"
    readonly property string freeOf: "free of %1"
    readonly property string usedSpace: "Used space"
    readonly property string screens: "Screens"
    /// Separates facts on one line, which breaks only after it.
    readonly property string joint: "\u00a0· "
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
    readonly property string filesExaminedBelow: "files examined"
    readonly property string scanningWithoutAccess: "Full Disk Access isn't granted, so Orlen is scanning only what macOS allows."
    readonly property string safelyFree: "You can safely free %1"
    readonly property string nothingSafe: "Nothing is rated Safe right now"
    readonly property string reviewInTotal: "%1 you could review in total"
    readonly property string scannedWithoutAccess: "Full Disk Access isn't granted, so some folders (such as Mail downloads) weren't scanned."
    readonly property string showFolders: "Show folders"
    readonly property string hideFolders: "Hide folders"
    readonly property string resultsFooter: "Safe, Review and Keep are suggestions from rules and on-device analysis. They can be wrong, so look before you clean. Nothing is permanently deleted: items move to the Trash and can be restored from History."
    readonly property string reviewAndClean: "Review & Clean…"
    readonly property string largeFilesFrom: "Large files from"
    readonly property string scanning: "Smart Scan is looking around"
    readonly property string cancellingScan: "Cancelling…"
    readonly property string nothingChanged: "Nothing was changed."
    readonly property string stepPending: "waiting"
    readonly property string stepRunning: "running"
    readonly property string stepDone: "done after %1"
    readonly property string selected: "%1 selected"
    readonly property string nothingFound: "There is nothing to clean up. Your home folder is tidy."
    readonly property string findings: "Findings"

    // Storage categories
    readonly property string chooseCategory: "Shows what fills this category"
    readonly property string largestFolders: "Largest folders"
    readonly property string opensInDiskMap: "Opens in the disk map"
    readonly property string showFewer: "Show fewer"
    readonly property string beyondOrlen: "What you can free yourself"
    readonly property string beyondOrlenLead: "Orlen does not touch these. The commands are for a terminal; Orlen runs none of them."
    readonly property string lookingForAdvice: "Looking at what other programs keep…"

    // Finding, review and clean-up
    readonly property string nothingLeft: "Nothing left here."
    readonly property string reviewTitle: "Review before cleaning"
    readonly property string reviewLead: "%1 items will be moved to the Trash. Nothing is permanently deleted, and you can restore them from History. Uncheck anything you want to keep."
    readonly property string moveToTrash: "Move to Trash"
    readonly property string movingToTrash: "Moving to the Trash…"
    readonly property string movedToTrash: "%1 moved to the Trash"
    readonly property string couldNotBeMoved: "%1 couldn't be moved"
    readonly property string notRecorded: "The history could not be saved. Orlen finishes it when it starts again."
    readonly property string notMoved: "What couldn't be moved"
    readonly property string nothingDeleted: "Nothing was deleted. The space comes back when you empty the Trash in Finder, and you can put everything back from History until then."
    readonly property string filter: "Filter"
    readonly property string clearFilter: "Clear Filter"
    readonly property string nothingMatches: "Nothing here matches the filter."
    readonly property string nothingSelected: "Nothing is selected."
    readonly property string selectAllShown: "Select all that are shown"
    readonly property string sortBy: "Sort by %1"
    readonly property string bySize: "Size"
    readonly property string byName: "Name"
    readonly property string byDate: "Date"
    readonly property string showItems: "Show items"
    readonly property string hideItems: "Hide items"
    readonly property string trashKeeps: "Everything moves to the Trash and can be restored from History."
    readonly property string anotherOrlen: "Another Orlen is open, so this one only looks. Close the other one to clean up here."
    readonly property string stop: "Stop"
    readonly property string stopping: "Stopping…"

    // Preview and Reveal
    readonly property string openWith: "Open With…"
    readonly property string beginningOnly: "Only the beginning is shown."
    readonly property string firstNamesOnly: "Only some of the names are shown."
    readonly property string emptyFolder: "This folder is empty."
    readonly property string noPreview: "There is no preview for this kind of item."
    readonly property string previewLocked: "This item may not be read, so there is no preview."
    readonly property string previewMissing: "This item is no longer there."
    readonly property string copyPath: "Copy Path"

    // Smart Photos
    readonly property string photosTitle: "Smart Photo Cleanup"
    readonly property string photosLead: "Screenshots, receipts, memes, blurry shots and near-duplicates in Pictures, Desktop, Downloads and Documents. Your Photos library is never touched."
    readonly property string photosBeforeScan: "Run a Smart Scan to find photo clean-ups."
    readonly property string goToSmartScan: "Go to Smart Scan"
    readonly property string noPhotos: "No photo clean-ups were found."
    readonly property string showAllNumber: "Show all %1"
    readonly property string showAllOf: "Show all of %1"
    readonly property string backToPhotos: "Back to Smart Photos"
    readonly property string kept: "Kept"
    readonly property string selectAllPhotos: "Select all photos"
    readonly property string noPhotoSelected: "No photo selected"
    readonly property string photosFooter: "Photos are analysed on this Mac with Apple's Vision framework: feature prints find similar shots, an image classifier spots screenshots and receipts, and a sharpness score picks the best photo of each set."

    // Ask Orlen
    readonly property string askPlaceholder: "Ask about your storage…"
    readonly property string tryOneOfThese: "Try one of these"
    readonly property string modelFooter: "Foundation Models · on device"
    readonly property string matcherFooter: "Built-in matcher · on device"
    readonly property string conversation: "Conversation"
    readonly property string send: "Send"
    readonly property string thinking: "Thinking…"
    readonly property string yourQuestion: "Your question: %1"
    readonly property string copied: "Copied"

    // Predict
    readonly property string predictLead: "How fast each kind of data is growing, learned from your past scans."
    readonly property string diskFull: "Disk full"
    readonly property string freeSpaceChart: "Free space from %1 to %2, now %3. %4. %5"
    readonly property string noForecast: "No forecast yet. %1"
    readonly property string growthLater: "How fast each kind of data grows appears here with the forecast."
    readonly property string growthByCategory: "Growth by category"
    readonly property string snapshotsStored: "%1 are stored on this Mac in Application Support/Orlen. A snapshot is saved after each Smart Scan, and when Orlen opens if the last one is over 12 hours old. Orlen does not run in the background, so predictions improve the more you use it. They are estimates from a straight-line fit, not promises."

    // Disk Map
    readonly property string diskMapLead: "Click a folder to zoom in. Right-click anything to reveal it in Finder. Pinch out to go back up."

    readonly property string measuring: "Measuring…"
    readonly property string emptyMap: "Nothing in this folder takes up space."
    readonly property string lockedMap: "Orlen may not look into this folder, or it is no longer there."
    readonly property string goUp: "Go back up"
    readonly property string foldersBetween: "Folders between"
    readonly property string measureAgain: "Measure again"
    readonly property string asMap: "Show as a map"
    readonly property string asList: "Show as a list"
    readonly property string contentsOf: "Contents of %1"

    // Applications
    readonly property string appsLead: "Uninstall an app with its leftovers."
    readonly property string reviewAndUninstall: "Review & Uninstall…"
    readonly property string noLeftovers: "No leftovers found."
    readonly property string appleApp: "This is an Apple app. Make sure you really want to remove it."

    readonly property string searchApps: "Search applications"
    readonly property string noApps: "No applications found."
    readonly property string noAppMatches: "No application matches “%1”."
    readonly property string lookingForLeftovers: "Looking for leftovers…"
    readonly property string otherCopy: "Another copy is installed"
    readonly property string otherCopyNote: "It still uses the files of this one, so they stay."
    readonly property string copyCommand: "Copy command"
    readonly property string leftBehind: "Left behind by apps that are gone"
    readonly property string leftBehindLead: "No program of these names was found. Look inside first: only you know what you still need."

    // Startup Items
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
    readonly property string restore: "Restore"
    readonly property string restoring: "Restoring…"
    readonly property string restored: "Restored"
    readonly property string restoreOf: "Restore %1, %2"
    readonly property string pastCleanUps: "Clean-ups"
    readonly property string itemsOf: "Items of %1"
    readonly property string readerOnly: "Another Orlen is open. Clean-ups can be restored from there."

    // How Orlen Works
    readonly property string safetyLead: "What it does, what it never does, and how far to trust it."
    readonly property string alwaysLeftAlone: "Always left alone"
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
    readonly property var shortcutGroups: [
        { title: "Everywhere", shortcuts: [
            { text: "Show a screen", keys: [["Ctrl", "1 … 9"]] },
            { text: "Start a Smart Scan", keys: [["Ctrl", "R"]] },
            { text: "Filter the list", keys: [["Ctrl", "F"]] },
            { text: "Next or previous control", keys: [["Tab"], ["Shift", "Tab"]] },
            { text: "Close a sheet", keys: [["Esc"]] },
            { text: "Show these shortcuts", keys: [["Ctrl", "?"], ["F1"]] },
            { text: "Quit", keys: [["Ctrl", "Q"], ["Ctrl", "W"]] }
        ] },
        { title: "Lists and cards", shortcuts: [
            { text: "Move", keys: [["←"], ["↑"], ["↓"], ["→"]] },
            { text: "First or last", keys: [["Home"], ["End"]] },
            { text: "A page up or down", keys: [["PgUp"], ["PgDn"]] },
            { text: "Open", keys: [["Enter"]] },
            { text: "Preview a file", keys: [["Space"]] },
            { text: "Scroll a preview", keys: [["PgUp"], ["PgDn"]] },
            { text: "Reload the map, apps or startup items", keys: [["F5"]] }
        ] },
        { title: "Disk Map", shortcuts: [
            { text: "Zoom into a folder", keys: [["Enter"]] },
            { text: "Go back up", keys: [["Backspace"]] },
            { text: "Zoom with the wheel", keys: [["Ctrl", "Wheel"]] }
        ] }
    ]

    // Tray item
    readonly property string trayNote: "Orlen only runs while it is open."
    readonly property string openOrlen: "Open Orlen"
    readonly property string quit: "Quit"
}

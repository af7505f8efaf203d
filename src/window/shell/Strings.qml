pragma Singleton
import QtQuick
import Orlen.App

/// The texts of the screens, grouped by screen. Those of the models are in WindowTexts.h.
QtObject {
    id: root

    // Common
    readonly property string appName: "Orlen"
    // TRANSLATORS: Stands below the size that is free.
    function freeOf(size: string): string {
        return Words.message("free of {size}", { size: size });
    }
    readonly property string usedSpace: Words.message("Used space")
    readonly property string screens: Words.message("Screens")
    readonly property string betweenSentences: Words.messageIn("between two sentences", " ")
    readonly property string clear: Words.messageIn("a field", "Clear")
    readonly property string close: Words.message("Close")
    readonly property string cancel: Words.message("Cancel")
    readonly property string done: Words.message("Done")
    readonly property string copy: Words.message("Copy")
    readonly property string reveal: Words.message("Reveal in Finder")
    readonly property string preview: Words.message("Quick Look")
    readonly property string undo: Words.message("Undo")
    readonly property string showResults: Words.message("Show last results")
    readonly property string trashPromise: Words.message("You'll see the full list first. Everything moves to the Trash and can be restored from History.")

    /// Facts that a screen reader says one after the other.
    function spoken(facts: list<string>): string {
        // TRANSLATORS: Between names and sizes that a screen reader reads aloud.
        return facts.filter(fact => fact !== "").join(Words.messageIn("read aloud", ", "));
    }
    function spokenText(title: string, text: string): string {
        // TRANSLATORS: A heading and the sentences below it, read aloud by a screen reader.
        return Words.messageIn("read aloud", "{title}. {text}", { title: title, text: text });
    }

    // Onboarding
    readonly property string welcomeTitle: Words.message("Welcome to Orlen")
    readonly property string welcomeSubtitle: Words.message("A calm, careful way to see what's filling your Mac.")
    readonly property string neverDeleted: Words.message("Nothing is permanently deleted")
    readonly property var promises: [
        {
            symbol: "lock.fill",
            title: Words.message("Everything stays on this Mac"),
            body: Words.message("All analysis and AI run on your device. Orlen makes no network calls and uploads nothing.")
        },
        {
            symbol: "trash.fill",
            title: root.neverDeleted,
            body: Words.message("Orlen only moves files to the Trash, after showing you the full list. History lets you put them back.")
        },
        {
            symbol: "hand.raised.fill",
            title: Words.message("Honest about its limits"),
            body: Words.message("Safe, Review and Keep are suggestions, not guarantees. Orlen doesn't run in the background or hide anything.")
        }
    ]
    // TRANSLATORS: Shown only in a sandbox that hides the home folder. Say "Access to your home folder (optional)".
    readonly property string accessTitle: Words.message("Full Disk Access (optional)")
    function accessBody(command: string): string {
        // TRANSLATORS: Say instead: The sandbox hides some folders. Allow Orlen to see your home folder with:
        // {command}. Without it, Orlen scans what it may see.
        return Words.message("macOS protects some folders, such as Mail downloads and parts of Library. Granting Full Disk Access lets Orlen see them. Without it, Orlen still works and simply scans what macOS allows.", { command: command });
    }
    // TRANSLATORS: After the command was run that lets it see the home folder.
    readonly property string accessHint: Words.message("Start Orlen again after that.")
    readonly property string continueWithoutIt: Words.message("Continue without it")
    readonly property string continueOn: Words.message("Continue")

    // Smart Scan
    readonly property string homeLead: Words.message("Run a Smart Scan to see what you can safely free")
    readonly property string lookingAtStorage: Words.message("Looking at your storage…")
    readonly property string startScan: Words.message("Start Smart Scan")
    readonly property string scanAgain: Words.message("Scan again")
    readonly property string backToStart: Words.message("Back to the start")
    readonly property string selectSafe: Words.message("Select everything Safe")
    readonly property string homeFooter: Words.message("Ratings are suggestions. Orlen only runs while it's open, uploads nothing, hides nothing, and only moves files to the Trash.")
    function filesExamined(count: int): string {
        return Words.messages("{count} files examined", "{count} files examined", { count: count });
    }
    function filesExaminedBelow(count: int): string {
        // TRANSLATORS: Stands below the number.
        return Words.messages("files examined", "files examined", { count: count });
    }
    // TRANSLATORS: Say instead: Orlen may not see all of your home folder, so it scans only what the sandbox allows.
    readonly property string scanningInSandbox: Words.message("Full Disk Access isn't granted, so Orlen is scanning only what macOS allows.")
    readonly property string scanningWithoutAccess: Words.message("Orlen may not see all of your home folder, so it scans only what it may see.")
    function reviewInTotal(size: string): string {
        return Words.message("{size} you could review in total", { size: size });
    }
    // TRANSLATORS: Say instead: Orlen may not see all of your home folder, so some folders weren't scanned.
    readonly property string scannedWithoutAccess: Words.message("Full Disk Access isn't granted, so some folders (such as Mail downloads) weren't scanned.")
    readonly property string showFolders: Words.message("Show folders")
    readonly property string hideFolders: Words.message("Hide folders")
    readonly property string resultsFooter: Words.message("Safe, Review and Keep are suggestions from rules and on-device analysis. They can be wrong, so look before you clean. Nothing is permanently deleted: items move to the Trash and can be restored from History.")
    readonly property string reviewAndClean: Words.message("Review & Clean…")
    // TRANSLATORS: A size follows, from which a file counts as large.
    readonly property string largeFilesFrom: Words.message("Large files from")
    readonly property string scanning: Words.message("Smart Scan is looking around")
    readonly property string cancellingScan: Words.message("Cancelling…")
    readonly property string nothingChanged: Words.message("Nothing was changed.")
    // TRANSLATORS: The next three are states of a step of a scan, read aloud.
    readonly property string stepPending: Words.messageIn("step", "waiting")
    readonly property string stepRunning: Words.messageIn("step", "running")
    function stepDone(duration: string): string {
        return Words.message("done after {duration}", { duration: duration });
    }
    function selected(amount: string): string {
        // TRANSLATORS: {amount} is a size or a number of items, such as "3 GB" or "12 items".
        return Words.message("{amount} selected", { amount: amount });
    }
    readonly property string nothingFound: Words.message("There is nothing to clean up. Your home folder is tidy.")
    readonly property string findings: Words.message("Findings")

    // Storage categories
    readonly property string chooseCategory: Words.message("Shows what fills this category")
    readonly property string largestFolders: Words.message("Largest folders")
    readonly property string opensInDiskMap: Words.message("Opens in the disk map")
    readonly property string showFewer: Words.message("Show fewer")
    readonly property string beyondOrlen: Words.message("What you can free yourself")
    readonly property string beyondOrlenLead: Words.message("Orlen does not touch these. The commands are for a terminal; Orlen runs none of them.")
    readonly property string lookingForAdvice: Words.message("Looking at what other programs keep…")

    // Finding, review and clean-up
    function keptFile(path: string): string {
        // TRANSLATORS: Above the copies of a file that stays; {path} is where it is.
        return Words.message("Kept: {path}", { path: path });
    }
    readonly property string whichToKeep: Words.message("Which copy to keep")
    readonly property string nothingLeft: Words.message("Nothing left here.")
    readonly property string reviewTitle: Words.message("Review before cleaning")
    function reviewLead(count: int): string {
        return Words.messages("{count} items will be moved to the Trash. Nothing is permanently deleted, and you can restore them from History. Uncheck anything you want to keep.",
                              "{count} items will be moved to the Trash. Nothing is permanently deleted, and you can restore them from History. Uncheck anything you want to keep.", { count: count });
    }
    readonly property string moveToTrash: Words.message("Move to Trash")
    readonly property string movingToTrash: Words.message("Moving to the Trash…")
    readonly property string notRecorded: Words.message("The history could not be saved. Orlen finishes it when it starts again.")
    readonly property string notMoved: Words.message("What couldn't be moved")
    readonly property string notPutBack: Words.message("What couldn't be restored")
    // TRANSLATORS: A button: shows the Trash in the file manager.
    readonly property string openTrash: Words.message("Open Trash")
    readonly property string nothingDeleted: Words.message("Nothing was deleted. The space comes back when you empty the Trash in Finder, and you can put everything back from History until then.")
    readonly property string filter: Words.messageIn("a field", "Filter")
    readonly property string clearFilter: Words.message("Clear Filter")
    readonly property string nothingMatches: Words.message("Nothing here matches the filter.")
    readonly property string nothingSelected: Words.message("Nothing is selected.")
    readonly property string selectAllShown: Words.message("Select all that are shown")
    function sortBy(order: string): string {
        // TRANSLATORS: {order} is one of the next seven, as it stands there.
        return Words.message("Sort by {order}", { order: order });
    }
    readonly property string byKind: Words.messageIn("order", "Kind")
    readonly property string bySize: Words.messageIn("order", "Size")
    readonly property string byUse: Words.messageIn("order", "Last use")
    readonly property string byName: Words.messageIn("order", "Name")
    readonly property string byDate: Words.messageIn("order", "Date")
    readonly property string byFolder: Words.messageIn("order", "Folder")
    readonly property string byRating: Words.messageIn("order", "Rating")
    readonly property string showItems: Words.message("Show items")
    readonly property string hideItems: Words.message("Hide items")
    readonly property string trashKeeps: Words.message("Everything moves to the Trash and can be restored from History.")
    readonly property string anotherOrlen: Words.message("Another Orlen is open, so this one only looks. Close the other one to clean up here.")
    readonly property string stop: Words.message("Stop")
    readonly property string stopping: Words.message("Stopping…")

    // Preview and Reveal
    readonly property string openWith: Words.message("Open With…")
    readonly property string beginningOnly: Words.message("Only the beginning is shown.")
    readonly property string firstNamesOnly: Words.message("Only some of the names are shown.")
    readonly property string emptyFolder: Words.message("This folder is empty.")
    readonly property string noPreview: Words.message("There is no preview for this kind of item.")
    readonly property string emptyArchive: Words.message("This archive is empty.")
    readonly property string damagedArchive: Words.message("This archive is damaged. What comes next could not be read.")
    readonly property string previewDamaged: Words.message("This file could not be read. It may be damaged or need a password.")
    readonly property string previewLocked: Words.message("This item may not be read, so there is no preview.")
    readonly property string previewMissing: Words.message("This item is no longer there.")
    readonly property string copyPath: Words.message("Copy Path")

    // The menu of a row
    function actionsFor(name: string): string {
        // TRANSLATORS: The name of a menu, read aloud; {name} is a file or folder.
        return Words.message("What to do with {name}", { name: name });
    }
    readonly property string tickFolder: Words.message("Select all in this folder")
    function keepFolder(folder: string): string {
        return Words.message("Keep the copies in {folder}", { folder: folder });
    }
    function alwaysKeep(folder: string): string {
        return Words.message("Never select a copy in {folder}", { folder: folder });
    }
    readonly property string foldersThatStay: Words.message("Folders that stay")
    function countOfFoldersThatStay(count: int): string {
        return Words.messages("{count} folder stays", "{count} folders stay", { count: count });
    }
    readonly property string neverOfferThis: Words.message("Never offer this")
    readonly property string neverOfferFolder: Words.message("Never offer anything in this folder")
    function neverOfferNamed(name: string): string {
        return Words.message("Never offer anything named “{name}”", { name: name });
    }

    // Smart Photos
    readonly property string photosTitle: Words.message("Smart Photo Cleanup")
    readonly property string photosLead: Words.message("Screenshots, receipts, memes, blurry shots and near-duplicates in Pictures, Desktop, Downloads and Documents. Your Photos library is never touched.")
    readonly property string photosBeforeScan: Words.message("Run a Smart Scan to find photo clean-ups.")
    readonly property string goToSmartScan: Words.message("Go to Smart Scan")
    readonly property string noPhotos: Words.message("No photo clean-ups were found.")
    function showAllNumber(count: int): string {
        // TRANSLATORS: A button: all photos of a group, or all folders.
        return Words.messages("Show all {count}", "Show all {count}", { count: count });
    }
    function showAllOf(group: string): string {
        return Words.message("Show all of {group}", { group: group });
    }
    readonly property string backToPhotos: Words.message("Back to Smart Photos")
    // TRANSLATORS: On the photo of a set that is not moved.
    readonly property string kept: Words.messageIn("a photo", "Kept")
    // TRANSLATORS: A button: looks at the photos of a set side by side.
    readonly property string compare: Words.messageIn("button", "Compare")
    // TRANSLATORS: A button: keeps this photo of a set instead of another one.
    readonly property string keep: Words.messageIn("button", "Keep")
    function keepNumber(number: int): string {
        // TRANSLATORS: The same, with the key that does it: 1 to 4.
        return Words.messageIn("button", "Keep ({number})", { number: number });
    }
    readonly property string keepAll: Words.messageIn("button", "Keep all (X)")
    // TRANSLATORS: A button: shows one of two photos in the place of the other; then, all beside each other again.
    readonly property string flip: Words.messageIn("button", "Flip (F)")
    readonly property string sideBySide: Words.messageIn("button", "Side by side (F)")
    readonly property string fit: Words.messageIn("button", "Fit")
    readonly property string zoomIn: Words.message("Zoom in")
    readonly property string zoomOut: Words.message("Zoom out")
    readonly property string previousSet: Words.message("Previous set")
    readonly property string nextSet: Words.message("Next set")
    readonly property string nextPhotos: Words.message("More of this set")
    readonly property string photosChanged: Words.message("These photos have changed since the scan. Run a Smart Scan first.")
    function trashNamed(name: string): string {
        // TRANSLATORS: A check box at a photo.
        return Words.message("Move {name} to the Trash", { name: name });
    }
    function differs(fact: string): string {
        // TRANSLATORS: Read aloud: {fact} is a size, a date and so on, which is not the same for all photos.
        return Words.messageIn("read aloud", "{fact}, differs", { fact: fact });
    }
    readonly property string selectAllPhotos: Words.message("Select all photos")
    readonly property string noPhotoSelected: Words.message("No photo selected")
    readonly property string photosFooter: Words.message("Photos are analysed on this Mac with Apple's Vision framework: feature prints find similar shots, an image classifier spots screenshots and receipts, and a sharpness score picks the best photo of each set.")

    // Ask Orlen
    readonly property string askPlaceholder: Words.message("Ask about your storage…")
    readonly property string tryOneOfThese: Words.message("Try one of these")
    readonly property string modelFooter: Words.message("Foundation Models · on device")
    readonly property string matcherFooter: Words.message("Built-in matcher · on device")
    // TRANSLATORS: a button below an answer that names files; it opens the list of them.
    readonly property string selectForReview: Words.message("Select these for review")
    readonly property string conversation: Words.message("Conversation")
    readonly property string send: Words.message("Send")
    readonly property string thinking: Words.message("Thinking…")
    function yourQuestion(question: string): string {
        return Words.message("Your question: {question}", { question: question });
    }
    readonly property string copied: Words.message("Copied")

    // Predict
    readonly property string predictLead: Words.message("How fast each kind of data is growing, learned from your past scans.")
    readonly property string diskFull: Words.message("Disk full")
    function freeSpaceChart(first: string, last: string, size: string): string {
        // TRANSLATORS: {first} and {last} are dates, {size} is the free space at the last.
        return Words.message("Free space from {first} to {last}, now {size}", { first: first, last: last, size: size });
    }
    readonly property string noForecast: Words.message("No forecast yet")
    readonly property string growthLater: Words.message("How fast each kind of data grows appears here with the forecast.")
    readonly property string whatGrew: Words.message("What grew")
    readonly property string sinceLastScan: Words.message("Since the last scan")
    readonly property string inAWeek: Words.message("In a week")
    readonly property string inAMonth: Words.message("In a month")
    readonly property string growthByCategory: Words.message("Growth by category")

    // Disk Map
    readonly property string diskMapLead: Words.message("Click a folder to zoom in. Right-click anything for what you can do with it. Pinch out to go back up.")
    readonly property string measuring: Words.message("Measuring…")
    readonly property string emptyMap: Words.message("Nothing in this folder takes up space.")
    readonly property string lockedMap: Words.message("Orlen may not look into this folder, or it is no longer there.")
    readonly property string goUp: Words.message("Go back up")
    readonly property string foldersBetween: Words.message("Folders between")
    // TRANSLATORS: Read aloud, before a folder: where the map starts.
    readonly property string startsAt: Words.message("Starts at")
    readonly property string measureAgain: Words.message("Measure again")
    readonly property string asMap: Words.message("Show as a map")
    readonly property string asList: Words.message("Show as a list")
    // TRANSLATORS: Read aloud: the choice of what the colours of the map tell.
    readonly property string coloursOfMap: Words.message("Colours of the map")
    readonly property string colourByKind: Words.message("Colour by kind")
    readonly property string colourByChange: Words.message("Colour by last change")
    readonly property string colourByGrowth: Words.message("Colour by growth")
    readonly property string colourByRating: Words.message("Colour by rating")
    function contentsOf(folder: string): string {
        return Words.message("Contents of {folder}", { folder: folder });
    }

    // Applications
    readonly property string appsLead: Words.message("Uninstall an app with its leftovers.")
    readonly property string reviewAndUninstall: Words.message("Review & Uninstall…")
    readonly property string noLeftovers: Words.message("No leftovers found.")
    // TRANSLATORS: A button that takes all ticks away.
    readonly property string clearTicks: Words.message("Select None")
    // TRANSLATORS: What a choice is for, read aloud: AppImages, Flatpaks and so on.
    readonly property string appSource: Words.message("Source of the applications")
    readonly property string searchApps: Words.message("Search applications")
    readonly property string noApps: Words.message("No applications found.")
    function noAppMatches(text: string): string {
        return Words.message("No application matches “{text}”.", { text: text });
    }
    readonly property string lookingForLeftovers: Words.message("Looking for leftovers…")
    readonly property string otherCopy: Words.message("Another copy is installed")
    readonly property string otherCopyNote: Words.message("It still uses the files of this one, so they stay.")
    readonly property string copyCommand: Words.message("Copy command")
    readonly property string leftBehind: Words.message("Left behind by apps that are gone")
    readonly property string leftBehindLead: Words.message("No program of these names was found. Look inside first: only you know what you still need.")

    // Startup Items
    readonly property string startupLead: Words.message("What starts when you log in. Disabling takes effect now and stays off at the next login.")
    readonly property string noLaunchAgents: Words.message("No launch agents found.")
    readonly property string openStartupSettings: Words.message("Open your desktop's startup settings")
    readonly property string settingsFailed: Words.message("Your desktop's startup settings couldn't be opened.")
    readonly property string openAtLogin: Words.message("Open Orlen at login")
    readonly property string openAtLoginNote: Words.message("Off by default. If turned on, Orlen opens a normal visible window at login; it still does nothing in the background.")
    function openAtLoginFailed(reason: string): string {
        // TRANSLATORS: Say instead: This couldn't be changed: {reason}
        return Words.message("macOS couldn't change this (it works for the packaged app): {reason}", { reason: reason });
    }
    readonly property string reload: Words.message("Reload")
    readonly property string startupItems: Words.message("Startup items")
    readonly property string partOfDesktop: Words.message("Part of your desktop")

    // History
    readonly property string historyLead: Words.message("Every clean-up, with a way back. Restore moves items out of the Trash to where they were.")
    readonly property string nothingCleaned: Words.message("Nothing cleaned yet.")
    readonly property string restore: Words.message("Restore")
    readonly property string restoring: Words.message("Restoring…")
    readonly property string restored: Words.messageIn("a clean-up", "Restored")
    function restoreOf(title: string, date: string): string {
        return Words.message("Restore {title}, {date}", { title: title, date: date });
    }
    function restoreItem(name: string): string {
        // TRANSLATORS: A button, read aloud; {name} is a file or folder.
        return Words.message("Restore {name}", { name: name });
    }
    readonly property string searchHistory: Words.message("Search clean-ups")
    function noCleanUpMatches(text: string): string {
        return Words.message("No clean-up holds “{text}”.", { text: text });
    }
    readonly property string pastCleanUps: Words.message("Clean-ups")
    function itemsOf(title: string): string {
        // TRANSLATORS: {title} is that of a clean-up.
        return Words.message("Items of {title}", { title: title });
    }
    readonly property string readerOnly: Words.message("Another Orlen is open. Clean-ups can be restored from there.")

    // How Orlen Works
    readonly property string safetyLead: Words.message("What it does, what it never does, and how far to trust it.")
    readonly property string alwaysLeftAlone: Words.message("Always left alone")
    readonly property string neverOffered: Words.message("Never offered")
    readonly property string howToExclude: Words.message("The menu of a file or folder in any list adds to this one. What is listed here is neither offered nor moved.")
    function offerAgain(what: string): string {
        // TRANSLATORS: A button; {what} is a path or a name.
        return Words.message("Offer {what} again", { what: what });
    }
    readonly property string testPath: Words.message("Test a path")
    readonly property string testPathLead: Words.message("Type or paste a file or folder to see what Orlen would do with it, and why.")
    readonly property string pathToTest: Words.message("A path that begins with / or ~")

    // Tray item
    readonly property string trayNote: Words.message("Orlen only runs while it is open.")
}

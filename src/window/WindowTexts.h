#pragma once

#include "model/Text.h"

/// The texts of the window's models. Those of its screens are in shell/Strings.qml.
namespace orlen::WindowTexts {

// Screens
inline constexpr Text kSmartScan = message("Smart Scan");
inline constexpr Text kSmartPhotos = message("Smart Photos");
inline constexpr Text kAskOrlen = message("Ask Orlen");
// TRANSLATORS: The screen that says when the disk will be full.
inline constexpr Text kPredict = messageIn("screen", "Predict");
inline constexpr Text kDiskMap = message("Disk Map");
inline constexpr Text kApplications = messageIn("screen", "Applications");
inline constexpr Text kStartupItems = messageIn("screen", "Startup Items");
inline constexpr Text kHistory = messageIn("screen", "History");
inline constexpr Text kHowOrlenWorks = message("How Orlen Works");
// TRANSLATORS: The next four are headings in the list of screens.
inline constexpr Text kCleanScreens = messageIn("screens", "Clean");
inline constexpr Text kInsightScreens = messageIn("screens", "Insights");
inline constexpr Text kManageScreens = messageIn("screens", "Manage");
inline constexpr Text kAboutScreens = messageIn("screens", "About");

// Amounts
inline constexpr Text kItems = messages("{count} item", "{count} items");
inline constexpr Text kApplicationCount = messages("{count} application", "{count} applications");
inline constexpr Text kFolders = messages("{count} folder", "{count} folders");
inline constexpr Text kPages = messages("{count} page", "{count} pages");
// TRANSLATORS: thousand bits a second, of a sound file.
inline constexpr Text kKilobits = messages("{count} kbit/s", "{count} kbit/s");
// TRANSLATORS: frames a second, of a film.
inline constexpr Text kFrames = messages("{count} fps", "{count} fps");
// TRANSLATORS: of a sound: through one loudspeaker, or through two.
inline constexpr Text kMono = message("mono");
inline constexpr Text kStereo = message("stereo");
inline constexpr Text kChannels = messages("{count} channel", "{count} channels");
inline constexpr Text kPhotos = messages("{count} photo", "{count} photos");
inline constexpr Text kSelectedPhotos = messages("{count} photo selected", "{count} photos selected");
// TRANSLATORS: Of the photos of a group, whose number stands before this.
inline constexpr Text kSelected = messages("{count} selected", "{count} selected");
// Why a photo is the one that its set keeps: three words or so.
inline constexpr Text kKeptByChoice = message("Kept: your choice");
inline constexpr Text kKeptSharpest = message("Kept: sharpest shot");
inline constexpr Text kKeptMostPixels = message("Kept: most pixels");
inline constexpr Text kKeptInColour = message("Kept: in colour");
inline constexpr Text kKeptAllColours = message("Kept: all colours");
inline constexpr Text kKeptCameraData = message("Kept: camera data");
inline constexpr Text kKeptLeastCompressed = message("Kept: least compressed");
inline constexpr Text kKeptLargestFile = message("Kept: largest file");
inline constexpr Text kKeptEqual = message("Kept: all alike");
inline constexpr Text kSelectedOf = messages("{count} of {total} selected", "{count} of {total} selected");
inline constexpr Text kPhotosLookedAt =
    messages("{done} of {count} photo looked at so far. The next scans look at the rest.",
             "{done} of {count} photos looked at so far. The next scans look at the rest.");
inline constexpr Text kDoneOf = messages("{count} of {total}", "{count} of {total}");
// TRANSLATORS: {share} is 1 %. It stands in a narrow column: prefer a sign to words.
inline constexpr Text kLessThan = message("< {share}");
inline constexpr Text kFree = message("{size} free");

// Dates of a file
inline constexpr Text kOpened = message("Opened {date}");
inline constexpr Text kModified = message("Modified {date}");

// Findings
inline constexpr Text kWhySafe = message("Why Safe: {reason}");
inline constexpr Text kWhyReview = message("Why Review: {reason}");
inline constexpr Text kWhyKeep = message("Why Keep: {reason}");

// TRANSLATORS: After all entries of a list were ticked but these.
inline constexpr Text kLeftUnticked = messages(
    "{count} item stays unticked: it is rated Keep or part of a repository. Tick it by itself.",
    "{count} items stay unticked: they are rated Keep or part of a repository. Tick them one by one.");

// Which file of each set of duplicates is kept: short, in a drop-down field.
inline constexpr Text kKeepUsual = message("Keep as proposed");
inline constexpr Text kKeepNewest = message("Keep the newest");
inline constexpr Text kKeepOldest = message("Keep the oldest");
inline constexpr Text kKeepShortest = message("Keep the shortest path");
inline constexpr Text kKeepIn = message("Keep those in {folder}");

// The age of the results
inline constexpr Text kScannedNow = message("Scanned just now");
inline constexpr Text kScannedMinutes = messages("Scanned {count} minute ago", "Scanned {count} minutes ago");
inline constexpr Text kScannedHours = messages("Scanned {count} hour ago", "Scanned {count} hours ago");
inline constexpr Text kScannedDays = messages("Scanned {count} day ago", "Scanned {count} days ago");
// TRANSLATORS: The next three follow one of those, as what speaks for another scan.
inline constexpr Text kOldResults = message("Much may have changed since.");
inline constexpr Text kDiskChanged = message("The free space has changed much since.");
inline constexpr Text kOtherThreshold = message("Scan again to find large files of the new size.");

// Storage categories
inline constexpr Text kApps = message("Installed apps and games, with their data.");
inline constexpr Text kPictures = message("Your pictures, and what photo programs keep.");
inline constexpr Text kMedia = message("Your music and videos.");
inline constexpr Text kDocuments = message("Your documents and downloads, and what lies on the desktop.");
inline constexpr Text kDeveloper = message("Tools and packages for developing software.");
inline constexpr Text kSystem =
    message("Everything else: the system with its programs, and the rest of your home folder.");
inline constexpr Text kCaches = message("What programs keep to be faster. A Smart Scan shows what can go.");
inline constexpr Text kShareOfDisk = message("{size} · {share} of the disk");
// TRANSLATORS: Stands for folders among the names of folders, as the next two do.
inline constexpr Text kNotVisible = message("Not visible to Orlen");
inline constexpr Text kRestOfHome = message("The rest of your home folder");
inline constexpr Text kFilesIn = message("Files in {folder}");
inline constexpr Text kHeldBack = message("For administrators only, or held in reserve");

// What is never offered
inline constexpr Text kExclusionsElsewhere =
    message("Another Orlen is open. What is never offered can be changed there.");
inline constexpr Text kWholePath = message("That is no whole path: one begins with / or ~.");
inline constexpr Text kExclusionsFull = message("The list of what is never offered is full.");
// TRANSLATORS: {error} is what the system says.
inline constexpr Text kExclusionsNotSaved =
    message("The list of what is never offered could not be saved ({error}), so nothing changed.");

// Disk map
inline constexpr Text kHome = messageIn("the user's folder", "Home");
// TRANSLATORS: The next two are read aloud by screen readers.
inline constexpr Text kSpokenFolder = message("{name}, {size}, folder");
inline constexpr Text kSpokenFile = message("{name}, {size}, file");
// TRANSLATORS: The next two as well.
inline constexpr Text kSpokenUnread = message("{name}, folder, could not be read");
inline constexpr Text kSpokenPartlyRead = message("{name}, {size}, could not be read whole");

// TRANSLATORS: The next three are the legend of a map: what stands for folders, for files, for all others.
inline constexpr Text kFoldersShown = messageIn("legend", "Folders");
inline constexpr Text kFilesShown = messageIn("legend", "Files");
inline constexpr Text kRestShown = messageIn("legend", "The rest");
// TRANSLATORS: The next five say how long ago something last changed.
inline constexpr Text kWithinWeek = messageIn("legend", "Within a week");
inline constexpr Text kWithinMonth = messageIn("legend", "Within a month");
inline constexpr Text kWithinYear = messageIn("legend", "Within a year");
inline constexpr Text kWithinTwoYears = messageIn("legend", "Within two years");
inline constexpr Text kEarlier = messageIn("legend", "Earlier");
inline constexpr Text kNotKnown = messageIn("legend", "Not known");
// TRANSLATORS: Of folders that lost space, and that hardly changed.
inline constexpr Text kSmaller = messageIn("legend", "Smaller");
inline constexpr Text kAsBefore = messageIn("legend", "As before");
inline constexpr Text kLost = message("\u2212{size}");
// TRANSLATORS: Before such a legend; {date} is that of an earlier scan.
inline constexpr Text kChangedSince = message("since {date}");
inline constexpr Text kProtected = messageIn("legend", "Protected");
inline constexpr Text kNotRated = messageIn("legend", "Not rated");
inline constexpr Text kRatingsNeedScan = message("Run a Smart Scan to see ratings.");

// Clean-ups and their history
inline constexpr Text kMoved = messages("{count} moved to the Trash", "{count} moved to the Trash");
inline constexpr Text kNotMoved = messages("{count} couldn't be moved", "{count} couldn't be moved");
inline constexpr Text kNotRestored = messages("{count} couldn't be restored", "{count} couldn't be restored");
inline constexpr Text kFreedInAll = message("{size} freed in all.");
// TRANSLATORS: {trash} is the size of what the Trash still holds.
inline constexpr Text kFreedAndInTrash =
    message("{size} freed in all. {trash} more once you empty the Trash.");
inline constexpr Text kInTrash = message("In the Trash");
inline constexpr Text kRestoredItem = messageIn("an item", "Restored");
inline constexpr Text kGone = message("No longer in the Trash");

// Applications
// TRANSLATORS: What kind of application it is; the folder it is in follows.
inline constexpr Text kAppBundle = message("App bundle");
inline constexpr Text kAppFolder = message("App folder");
inline constexpr Text kRemovedFlatpak = message("Data of a removed Flatpak");
// TRANSLATORS: The first of the choices of what kinds of applications are listed.
inline constexpr Text kAllSources = messageIn("applications", "All sources");
// TRANSLATORS: How much of an application's size is what it has stored.
inline constexpr Text kOfItData = message("{size} of it data");
inline constexpr Text kLastUsed = message("Last used {date}");
// TRANSLATORS: The file of an application was read then, likely because somebody started it.
inline constexpr Text kFileLastRead = message("File last read {date}");
// TRANSLATORS: Of an application.
inline constexpr Text kUseUnknown = message("Last use unknown");
inline constexpr Text kPackaged = messages("{count} program belongs to your package manager.",
                                           "{count} programs belong to your package manager.");

// Forecast
inline constexpr Text kNoChange = message("No change");
inline constexpr Text kGrown = message("+{size}");
// TRANSLATORS: {date} is that of the newest reading of the disk.
inline constexpr Text kAsOf = message("As of {date}.");
// TRANSLATORS: a point of a chart: {size} was free on {date}.
inline constexpr Text kFreeOn = message("{date}: {size} free");
// TRANSLATORS: a point of a forecast: about {size} will be free on {date}.
inline constexpr Text kFreeAround = message("{date}: about {size} free");
inline constexpr Text kGrowth = message("+{size} / week");
inline constexpr Text kDecline = message("\u2212{size} / week");
inline constexpr Text kSnapshots = messages(
    // TRANSLATORS: Instead of "Mac" say "computer", and instead of "Application Support/Orlen" write
    // {folder}, which is the true place.
    "{count} snapshot are stored on this Mac in Application Support/Orlen. A snapshot is saved after each "
    "Smart Scan, and when Orlen opens if the last one is over 12 hours old. Orlen does not run in the "
    "background, so predictions improve the more you use it. They are estimates from a straight-line fit, "
    "not "
    "promises.",
    "{count} snapshots are stored on this Mac in Application Support/Orlen. A snapshot is saved after each "
    "Smart Scan, and when Orlen opens if the last one is over 12 hours old. Orlen does not run in the "
    "background, so predictions improve the more you use it. They are estimates from a straight-line fit, "
    "not "
    "promises.");

// Preview
// TRANSLATORS: A type of file: a symbolic link.
inline constexpr Text kLink = messageIn("type of file", "Link");
inline constexpr Text kNoProgram = message("No program could show this item: {path}");

// Photos of a set side by side
inline constexpr Text kSetOf = message("Set {number} of {count}");
// TRANSLATORS: {score} is a whole number; sharp photos have a hundred and more.
inline constexpr Text kSharpness = message("Sharpness {score}");
// TRANSLATORS: The file says which camera took the photo, or how.
inline constexpr Text kCameraData = message("Camera data");
inline constexpr Text kNoCameraData = message("No camera data");

// Startup items
inline constexpr Text kNotSwitchedOff = message("{name} couldn't be switched off. Nothing has changed.");
inline constexpr Text kNotSwitchedOn = message("{name} couldn't be switched on. Nothing has changed.");

// Outside the window
inline constexpr Text kScanFinished = message("Smart Scan finished");
inline constexpr Text kLastScan = message("Last scan: you can safely free {size}");
inline constexpr Text kOpenOrlen = message("Open Orlen");
inline constexpr Text kQuit = messageIn("button", "Quit");
inline constexpr Text kIsOpen = message("Orlen is open already.");
inline constexpr Text kNoWindow =
    message("the window cannot be opened on this display; `orlen scan` works without one.");

} // namespace orlen::WindowTexts

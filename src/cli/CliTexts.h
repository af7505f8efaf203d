#pragma once

#include "model/Text.h"

/// The sentences of the command line; those that the window's models say too are in `AppTexts`. Sentences
/// that begin in lower case stand on standard error, behind "orlen: ". What stands in backticks is for
/// typing: it stays as it is in every language.
namespace orlen::CliTexts {

// --help: the program.
inline constexpr Text kDescription = message(
    "Finds what fills the disk, rates it, and moves to the Trash what you choose. Nothing is ever deleted.");
inline constexpr Text kWithoutCommand =
    message("Without a command the window opens. `orlen COMMAND --help` tells about one command.");
inline constexpr Text kVerboseHelp =
    message("With --version: print what keeps the recognizer of pictures in");
inline constexpr Text kPrintHelp = message("Print this help and exit");
inline constexpr Text kPrintVersion = message("Print the version and exit");
inline constexpr Text kPrintJson = message("Print one JSON document and nothing else");

// --version --verbose: what keeps the recognizer in. The other walls are rows of a table.
inline constexpr Text kRecognizer = message("Recognizer, the process that reads pictures:");
inline constexpr Text kRecognizerSilent =
    message("Recognizer: it could not be asked, so no picture is looked at.");
// TRANSLATORS: Landlock is a part of the system's kernel that keeps programs away from files.
inline constexpr Text kFilesClosed = message("Files: none can be opened (no Landlock)");
inline constexpr Text kFilesOpen = message("Files: not closed on this system (no Landlock)");
inline constexpr Text kFilesClosedByLandlock = message("Files: none can be opened (Landlock {version})");
inline constexpr Text kFilesOpenDespiteLandlock =
    message("Files: not closed on this system (Landlock {version})");
// TRANSLATORS: The first page of a PDF file is drawn by a process that may read the fonts of the system.
inline constexpr Text kFontsReadable = message("The system's fonts: can be read to draw pages");

// --help: headings and marks.
inline constexpr Text kUsage = messageIn("heading in --help", "Usage");
inline constexpr Text kPositionals = messageIn("heading in --help", "Positionals");
inline constexpr Text kOptions = messageIn("heading in --help", "Options");
inline constexpr Text kSubcommands = messageIn("heading in --help", "Subcommands");
inline constexpr Text kOptionsHere = messageIn("in --help: options stand here", "OPTIONS");
inline constexpr Text kSubcommandHere = messageIn("in --help: a command stands here", "SUBCOMMAND");
inline constexpr Text kTextHere = messageIn("in --help: the value is any text", "TEXT");
inline constexpr Text kRequired = messageIn("in --help: it must be given", "REQUIRED");
inline constexpr Text kNeeds = messageIn("in --help: only together with these options", "Needs");
inline constexpr Text kExcludes = messageIn("in --help: not together with these options", "Excludes");

// --help: the commands.
inline constexpr Text kScanSummary =
    message("Run a Smart Scan of the home folder and print the rated findings");
inline constexpr Text kCleanSummary =
    message("Run a Smart Scan, show what is selected, and move it to the Trash after a yes");
inline constexpr Text kHistorySummary = message("List the clean-ups made so far, newest first");
inline constexpr Text kRestoreSummary = message("Put the items of one clean-up back where they were");
inline constexpr Text kBreakdownSummary = message("Measure how the storage of the start-up volume is used");
inline constexpr Text kPredictSummary = message("Forecast the growth from the snapshots of past scans");
inline constexpr Text kGrewSummary = message("Show the folders that grew most since an earlier scan");
inline constexpr Text kAskSummary = message("Run a Smart Scan and answer a question about the storage");
inline constexpr Text kDuplicatesSummary =
    message("Find files with the same content below folders, or in the home folder");
inline constexpr Text kPhotosSummary =
    message("Find look-alikes, screenshots, receipts, memes and blurry photos");
inline constexpr Text kMapSummary = message("Show what the items of a folder take on disk, largest first");
inline constexpr Text kAppsSummary = message("Show the installed applications with their sizes");
inline constexpr Text kLeftoversSummary =
    message("Show what an application left in your folders, or what all that are gone left");
inline constexpr Text kUninstallSummary =
    message("Move an application and its leftovers to the Trash after a yes");
inline constexpr Text kStartupSummary = message("Show what starts when you log in; switch it off and on");
inline constexpr Text kDisableSummary =
    message("Switch an item off: stop it now and keep it off at the next login");
inline constexpr Text kEnableSummary = message("Switch an item on again: it starts at the next login");
inline constexpr Text kExplainSummary = message("Say what Orlen would do with a path, and why");
inline constexpr Text kExcludeSummary = message("Show and change what is never offered");
inline constexpr Text kAddSummary =
    message("Never offer a path and what is below it, or any entry of a name");
inline constexpr Text kRemoveSummary = message("Offer a path or a name again");
inline constexpr Text kAdviceSummary =
    message("Show what fills the disk outside Orlen's reach, and the command that frees it");

// --help: their options and arguments.
inline constexpr Text kLargeHelp = message("Megabytes from which a file counts as large");
inline constexpr Text kKindHelp = message("Of the selected entries only those of this kind");
inline constexpr Text kAllHelp = message("Every entry of these kinds except those rated Keep");
inline constexpr Text kEntryHelp = message("Exactly this entry of the scan, whatever its rating");
inline constexpr Text kDryRunHelp = message("Print the plan and move nothing");
inline constexpr Text kMoveYesHelp = message("Move without asking");
inline constexpr Text kRestoreYesHelp = message("Put back without asking");
inline constexpr Text kRecordHelp =
    message("The record as `orlen history` names it, or its first characters");
inline constexpr Text kSinceHelp =
    message("Compare with the scan before this day (YYYY-MM-DD) instead of the one before the last");
inline constexpr Text kQuestionHelp = message("The question, in quotation marks");
inline constexpr Text kQuestionsToBegin = message("Questions to begin with:");
inline constexpr Text kDuplicateFoldersHelp =
    message("Folders to look into; the home folder when there are none");
inline constexpr Text kKeepHelp = message("Which file of each set is kept");
inline constexpr Text kKeepInHelp = message("Keep the files in this folder rather than others");
inline constexpr Text kReferenceHelp =
    message("A folder whose files are kept and never listed as copies (repeatable)");
inline constexpr Text kPhotoFoldersHelp =
    message("Folders to look into; the image folders of the home folder when there are none");
inline constexpr Text kMapFolderHelp = message("Folder to show; the home folder when there is none");
inline constexpr Text kAppIdHelp = message("Identifier of the application, such as org.example.App");
inline constexpr Text kAppNameHelp = message("Name of the application");
inline constexpr Text kAppHelp = message("Name or path of the application");
inline constexpr Text kByNameHelp = message("Take leftovers along that are matched by name only");
inline constexpr Text kStartupItemHelp = message("Label of the item, or the path of its file");
inline constexpr Text kPathHelp = message("File or folder");
inline constexpr Text kEveryNameHelp = message("Every file or folder of this name");

// Wrong calls.
inline constexpr Text kNoWindow =
    message("there is no display to open a window on; `orlen scan` looks at your home folder here.");
inline constexpr Text kNoSuchWord = message("there is no command or option {word}.");
inline constexpr Text kTryHelp = message("Try `orlen --help`.");
// TRANSLATORS: follows the name of an option and a colon.
inline constexpr Text kNoMegabytes = message("must be a number of megabytes from 0 on");
// TRANSLATORS: follows the name of an option and a colon; the three words stay as they are.
inline constexpr Text kNoOrder = message("must be newest, oldest or shortest");
// TRANSLATORS: follows the name of an option and a colon.
inline constexpr Text kNoKind = message("there is no kind {word}");
inline constexpr Text kNoDate = message("{word} is no day, such as 2025-03-01.");
inline constexpr Text kNoReadableFolder = message("{path} is not a folder that can be read.");
inline constexpr Text kProtectedFolder = message("{path} is protected.");
inline constexpr Text kNoTextInDocument = message("{path} is not UTF-8, so no document can hold it.");

// On standard error, for any command.
inline constexpr Text kOtherWriter =
    message("another Orlen is open and keeps the history; close it and try again.");
inline constexpr Text kUnusableHome =
    message("the home folder is missing or belongs to somebody else, so nothing in it is scanned or moved.");
inline constexpr Text kSilentMount =
    message("{path} lies on a network disk that does not answer; what it holds was left out.");
inline constexpr Text kCancelled = message("cancelled.");
// TRANSLATORS: a line of a list: what is wrong with the file or folder at {path}.
inline constexpr Text kPathAndReason = message("{path}: {reason}");

// While it works: a live line.
inline constexpr Text kMeasuring = message("Measuring the storage");
inline constexpr Text kMeasuringFolder = message("Measuring {path}");
inline constexpr Text kMeasuringApps = message("Measuring applications");
inline constexpr Text kLookingForApps = message("Looking for applications");
inline constexpr Text kLookingForLeftovers = message("Looking for leftovers");
inline constexpr Text kLookingForAdvice = message("Looking at what others keep on the disk");
inline constexpr Text kAskingServices = message("Asking what starts at login");
inline constexpr Text kMoving = message("Moving to the Trash… {done} of {total}");
inline constexpr Text kExamined = messages("{count} file examined", "{count} files examined");
// TRANSLATORS: So many photos of all were looked at.
inline constexpr Text kPhotosDone = messages("{count} of {total} photo", "{count} of {total} photos");
// TRANSLATORS: {step} is a step of the scan that runs; {others} more run at the same time.
inline constexpr Text kStepAndOthers = message("{step} +{others}");

// Headings of tables. Several of them stand above narrow columns.
inline constexpr Text kSizeHeading = messageIn("table heading", "Size");
inline constexpr Text kNameHeading = messageIn("table heading", "Name");
inline constexpr Text kPathHeading = messageIn("table heading", "Path");
inline constexpr Text kFileHeading = messageIn("table heading", "File");
inline constexpr Text kCategoryHeading = messageIn("table heading", "Category");
inline constexpr Text kRatingHeading = messageIn("table heading", "Rating");
inline constexpr Text kFindingHeading = messageIn("table heading", "Finding");
// TRANSLATORS: how much of a finding is rated Safe.
inline constexpr Text kSafeHeading = messageIn("table heading", "Safe");
// TRANSLATORS: how many files and folders a finding has.
inline constexpr Text kEntriesHeading = messageIn("table heading", "Entries");
// TRANSLATORS: what a clean-up is called in `orlen restore`.
inline constexpr Text kRecordHeading = messageIn("table heading", "Record");
// TRANSLATORS: how much an application has stored.
inline constexpr Text kDataHeading = messageIn("table heading", "Data");
// TRANSLATORS: when an application was last used.
inline constexpr Text kLastUsedHeading = messageIn("table heading", "Last used");
inline constexpr Text kDateHeading = messageIn("table heading", "Date");
inline constexpr Text kCleanUpHeading = messageIn("table heading", "Clean-up");
inline constexpr Text kItemsHeading = messageIn("table heading", "Items");
// TRANSLATORS: how many items a clean-up could not move.
inline constexpr Text kFailedHeading = messageIn("table heading", "Failed");
inline constexpr Text kGrowthHeading = messageIn("table heading", "Growth");
// TRANSLATORS: where an application comes from.
inline constexpr Text kSourceHeading = messageIn("table heading", "Source");
// TRANSLATORS: what fills the disk.
inline constexpr Text kWhatHeading = messageIn("table heading", "What");
inline constexpr Text kCommandHeading = messageIn("table heading", "Command");
// TRANSLATORS: what starts at login.
inline constexpr Text kItemHeading = messageIn("table heading", "Item");
// TRANSLATORS: for whom it starts: your account, or all users.
inline constexpr Text kForHeading = messageIn("table heading", "For");
// TRANSLATORS: the program that an item starts.
inline constexpr Text kRunsHeading = messageIn("table heading", "Runs");
// TRANSLATORS: what Orlen never offers.
inline constexpr Text kExcludedHeading = messageIn("table heading", "Excluded");

// scan and what shows findings.
inline constexpr Text kToReview = message("{size} you could review in total");
inline constexpr Text kExaminedIn =
    messages("{count} file examined in {time}", "{count} files examined in {time}");
inline constexpr Text kNothingFound = message("Nothing was found.");
// TRANSLATORS: the last line of a list that is cut.
inline constexpr Text kMore = messages("… and {count} more", "… and {count} more");
inline constexpr Text kNoFullAccess =
    message("Full Disk Access isn't granted, so some folders (such as Mail downloads) weren't scanned.");
inline constexpr Text kHowToClean =
    message("`orlen clean` lists the Safe entries and moves them to the Trash when you say yes.");
inline constexpr Text kNoSnapshot = message("another Orlen is open, so no snapshot of this scan was saved.");

// clean, and every list of what moves.
inline constexpr Text kItemsOfSize = messages("{count} item ({size})", "{count} items ({size})");
inline constexpr Text kMoveItems =
    messages("Move {count} item ({size}) to the Trash?", "Move {count} items ({size}) to the Trash?");
inline constexpr Text kMoved =
    messages("{count} item ({size}) moved to the Trash", "{count} items ({size}) moved to the Trash");
inline constexpr Text kNotMoved =
    messages("{count} item couldn't be moved", "{count} items couldn't be moved");
inline constexpr Text kNothingDeleted =
    message("Nothing was deleted. The space comes back when you empty the Trash.");
inline constexpr Text kNothingToClean = message("Nothing is selected, so there is nothing to move.");
inline constexpr Text kNoEntry = message("{path} is not an entry of the scan.");
inline constexpr Text kTrashIsKept = message("what lies in the Trash is shown, but never moved again.");
inline constexpr Text kProtectedStays = message("{path} is protected and stays where it is.");
inline constexpr Text kExcludedStays = message("{path} is excluded and stays where it is.");
inline constexpr Text kKeptStays =
    message("{path} is what stays of a set of copies: leave it out, or its copies.");
inline constexpr Text kKeptStay = messages("{count} item stays, as its copies are selected.",
                                           "{count} items stay, as their copies are selected.");
inline constexpr Text kNoTerminal =
    message("nothing was moved: without a terminal to ask on, this needs --yes.");
inline constexpr Text kRefused = message("nothing was moved.");
inline constexpr Text kCancelledCleaning = message("cancelled; what had been moved is in the history.");
inline constexpr Text kNotRecorded = message(
    "the history could not be saved; the next start of Orlen finishes it from what lies in the Trash.");
inline constexpr Text kNotBegun =
    // TRANSLATORS: {reason} is a few words, such as "disk full".
    message("the clean-up was not begun, since it could not be written down: {reason}.");

// Asking.
// TRANSLATORS: stands behind a question: what to type for yes and for no. The upper-case letter, no, is what
// anything else means.
inline constexpr Text kYesOrNo = messageIn("behind a question", "[y/N]");
// TRANSLATORS: what may be typed for yes, in lower case, with a space between if there are several ("o oui").
// "y" and "yes" always mean yes.
inline constexpr Text kYesWords = messageIn("letters that mean yes", "y");

// history and restore.
inline constexpr Text kNothingCleaned = message("Nothing cleaned yet.");
inline constexpr Text kHowToRestore = message("`orlen restore RECORD` puts the items of a clean-up back.");
// TRANSLATORS: every item of a clean-up is back where it was.
inline constexpr Text kAllRestored = messageIn("state of a clean-up", "restored");
inline constexpr Text kNoCleanUp = message("there is no clean-up {id}.");
// TRANSLATORS: {id} is the beginning of a record's name.
inline constexpr Text kSeveralCleanUps = message("several clean-ups begin with {id}.");
inline constexpr Text kPutBackItems =
    messages("Put back {count} item ({size})?", "Put back {count} items ({size})?");
inline constexpr Text kRestoreNotBegun =
    // TRANSLATORS: {reason} is a few words, such as "disk full".
    message("nothing was put back, since it could not be written down: {reason}.");

// breakdown and predict.
inline constexpr Text kFreeOf = message("{free} free of {total}");
// TRANSLATORS: space that nothing takes, in a list of what takes space.
inline constexpr Text kFree = messageIn("row of a table", "Free");
inline constexpr Text kGrows = message("+{size} a day");
inline constexpr Text kShrinks = message("-{size} a day");
inline constexpr Text kStaysTheSame = message("{size} a day");
inline constexpr Text kSnapshots =
    messages("{count} snapshot of past scans", "{count} snapshots of past scans");

// map, duplicates and photos.
// TRANSLATORS: {path} is a folder.
// TRANSLATORS: {name} is a folder of which Orlen may not read anything, or some of it.
inline constexpr Text kUnreadFolder = message("{name} (not readable)");
inline constexpr Text kPartlyReadFolder = message("{name} (not all readable)");
inline constexpr Text kSizeInFolder = message("{size} in {path}");
inline constexpr Text kMeasuredIn = message("measured in {time}");
inline constexpr Text kCopies = messages("{count} copy, {size}", "{count} copies, {size}");
inline constexpr Text kComparedIn =
    messages("{count} file compared in {time}", "{count} files compared in {time}");
// TRANSLATORS: before a file: Orlen keeps this one.
inline constexpr Text kKeeps = messageIn("file of a set of duplicates", "keeps");
// TRANSLATORS: before a file: a copy of the one above.
inline constexpr Text kCopy = messageIn("file of a set of duplicates", "copy");
inline constexpr Text kNoDuplicates = message("No duplicate files were found.");
inline constexpr Text kPhotos = messages("{count} photo, {size}", "{count} photos, {size}");
inline constexpr Text kLookedAtIn =
    messages("{count} picture looked at in {time}", "{count} pictures looked at in {time}");
inline constexpr Text kNoPhotos = message("No photos to review were found.");
inline constexpr Text kNoRecognizer =
    message("no picture could be looked at: the program orlen-recognizer is missing.");

// apps, leftovers and uninstall.
inline constexpr Text kApps = messages("{count} application, {size}", "{count} applications, {size}");
// TRANSLATORS: an application that is a folder with ".app" in its name.
inline constexpr Text kAppBundle = messageIn("kind of application", "App bundle");
// TRANSLATORS: an application that is a folder.
inline constexpr Text kAppFolder = messageIn("kind of application", "Folder");
inline constexpr Text kNoApps = message("No applications found.");
inline constexpr Text kLeftoversByName = message("Leftovers found by name ({name})");
inline constexpr Text kNoLeftovers = message("No leftovers found.");
inline constexpr Text kNobodysLeftovers = message("leftovers are found by --id, --name or both.");
inline constexpr Text kLeftBehind = messages("Left behind by apps that are gone: {count} folder, {size}",
                                             "Left behind by apps that are gone: {count} folders, {size}");
inline constexpr Text kNothingLeftBehind = message("Nothing was left behind by apps that are gone.");
inline constexpr Text kByNameLeft =
    // TRANSLATORS: a list of files and folders follows.
    message("Matched by name only, so they stay; --by-name takes them along:");
inline constexpr Text kPathAndSize = message("{path} ({size})");
inline constexpr Text kOtherCopy = message("Another copy is installed");
inline constexpr Text kNoApp = message("there is no installed application {name}.");
// TRANSLATORS: a list of paths follows.
inline constexpr Text kSeveralApps = message("{name} names several applications; name one by its path:");

// startup.
inline constexpr Text kStartupItems =
    message("What starts when you log in. Disabling takes effect now and stays off at the next login.");
inline constexpr Text kNoStartupItems = message("No launch agents found.");
inline constexpr Text kHowToSwitch =
    message("`orlen startup disable ITEM` and `orlen startup enable ITEM` switch an item.");
inline constexpr Text kOn = messageIn("state of what starts at login", "On");
inline constexpr Text kOff = messageIn("state of what starts at login", "Off");
inline constexpr Text kPartOfDesktop = message("Part of your desktop");
inline constexpr Text kNoStartupItem = message("there is no startup item {name}.");
inline constexpr Text kSeveralStartupItems =
    // TRANSLATORS: a list of paths follows.
    message("{name} names several startup items; name one by its path:");
inline constexpr Text kNotSwitchedOn = message("{name} could not be switched on.");
inline constexpr Text kNotSwitchedOff = message("{name} could not be switched off.");
inline constexpr Text kMayBeMissed =
    message("{name} is part of your desktop; switch it on again if something is missing.");

// exclude. {what} is a path or a quoted name.
inline constexpr Text kHowToExclude =
    message("`orlen exclude add PATH` and `orlen exclude remove PATH` change this list; --name takes every "
            "entry of a name.");
inline constexpr Text kPathOrName = message("give a path, or a name with --name.");
inline constexpr Text kNoName = message("{what} is no name that a file or folder can have.");
inline constexpr Text kNotExcluded = message("{what} is not in the list of exclusions.");
inline constexpr Text kExclusionNotThere =
    message("{what} is not there now; it stays excluded in case it comes.");
inline constexpr Text kTooManyExclusions = message("the list of exclusions is full.");
// TRANSLATORS: {error} is what the system says.
inline constexpr Text kExclusionsNotSaved = message("the list of exclusions could not be saved: {error}.");

// advice.
// TRANSLATORS: {size} may also be "at least 1.2 GB".
inline constexpr Text kBeyondOrlen = message("{size} outside Orlen's reach");
inline constexpr Text kNoAdvice = message("Nothing outside Orlen's reach takes up much space.");
inline constexpr Text kAdviceIsForYou = message("Orlen runs none of these commands.");

} // namespace orlen::CliTexts

#pragma once

#include <string_view>

/// The sentences of the command line.
namespace orlen::Texts {

inline constexpr std::string_view kDescription =
    "Finds what fills the disk, rates it, and moves to the Trash what you choose. Nothing is ever deleted.";
inline constexpr std::string_view kWithoutCommand =
    "Without a command the window opens. `orlen COMMAND --help` tells about one command.";
inline constexpr std::string_view kNoWindow =
    "there is no display to open a window on; `orlen scan` looks at your home folder here.";
inline constexpr std::string_view kNothingSafe = "Nothing is rated Safe right now";
inline constexpr std::string_view kNothingFound = "Nothing was found.";
inline constexpr std::string_view kNoFullAccess =
    "Full Disk Access isn't granted, so some folders (such as Mail downloads) weren't scanned.";
inline constexpr std::string_view kHowToClean =
    "`orlen clean` lists the Safe entries and moves them to the Trash when you say yes.";
inline constexpr std::string_view kNoSnapshot =
    "another Orlen is open, so no snapshot of this scan was saved.";
inline constexpr std::string_view kOtherWriter =
    "another Orlen is open and keeps the history; close it and try again.";
inline constexpr std::string_view kUnusableHome =
    "the home folder is missing or belongs to somebody else, so nothing in it is scanned or moved.";
inline constexpr std::string_view kIsSilent =
    " lies on a network disk that does not answer; what it holds was left out.";
inline constexpr std::string_view kNothingToClean = "Nothing is selected, so there is nothing to move.";
inline constexpr std::string_view kNothingCleaned = "Nothing cleaned yet.";
inline constexpr std::string_view kHowToRestore = "`orlen restore RECORD` puts the items of a clean-up back.";
inline constexpr std::string_view kMeasuring = "Measuring the storage";
inline constexpr std::string_view kMoving = "Moving to the Trash…";
inline constexpr std::string_view kNoTerminal =
    "nothing was moved: without a terminal to ask on, this needs --yes.";
inline constexpr std::string_view kRefused = "nothing was moved.";
inline constexpr std::string_view kCancelled = "cancelled.";
inline constexpr std::string_view kCancelledCleaning = "cancelled; what had been moved is in the history.";
inline constexpr std::string_view kNothingDeleted =
    "Nothing was deleted. The space comes back when you empty the Trash.";
inline constexpr std::string_view kNotRecorded =
    "the history could not be saved; the next start of Orlen finishes it from what lies in the Trash.";
inline constexpr std::string_view kNotBegun =
    "the clean-up was not begun, since it could not be written down: ";
inline constexpr std::string_view kRestoreNotBegun =
    "nothing was put back, since it could not be written down: ";
inline constexpr std::string_view kTrashIsKept = "what lies in the Trash is shown, but never moved again.";
inline constexpr std::string_view kNoDuplicates = "No duplicate files were found.";
inline constexpr std::string_view kNoPhotos = "No photos to review were found.";
inline constexpr std::string_view kNoRecognizer =
    "no picture could be looked at: the program orlen-recognizer is missing.";
inline constexpr std::string_view kMeasuringFolder = "Measuring ";
inline constexpr std::string_view kNoReadableFolder = " is not a folder that can be read.";
inline constexpr std::string_view kNoTextInDocument = " is not UTF-8, so no document can hold it.";
inline constexpr std::string_view kNotThere = "nothing there";
inline constexpr std::string_view kOfferedNowhere = "Not protected, and no known place offers it. Whether it "
                                                    "is a duplicate or a photo to review, a scan tells.";
inline constexpr std::string_view kNothingExcluded = "Nothing is excluded.";
inline constexpr std::string_view kHowToExclude = "`orlen exclude add PATH` and `orlen exclude remove PATH` "
                                                  "change this list; --name takes every entry of a name.";
inline constexpr std::string_view kPathOrName = "give a path, or a name with --name.";
inline constexpr std::string_view kNoName = " is no name that a file or folder can have.";
inline constexpr std::string_view kNowExcluded = " is excluded: it is neither offered nor moved.";
inline constexpr std::string_view kNameNowExcluded =
    " is excluded: no entry of this name is offered or moved; a folder that only holds one may be.";
inline constexpr std::string_view kNoLongerExcluded = " is no longer excluded.";
inline constexpr std::string_view kExcludedStays = " is excluded and stays where it is.";
inline constexpr std::string_view kNotExcluded = " is not in the list of exclusions.";
inline constexpr std::string_view kExclusionNotThere =
    " is not there now; it stays excluded in case it comes.";
inline constexpr std::string_view kTooManyExclusions = "the list of exclusions is full.";
inline constexpr std::string_view kExclusionsNotSaved = "the list of exclusions could not be saved: ";
inline constexpr std::string_view kExcludedBy = "Excluded by ";
inline constexpr std::string_view kNeitherOfferedNorMoved = ": neither offered nor moved.";
inline constexpr std::string_view kOfferedOtherwise = ": neither offered nor moved. Otherwise it would be:";
inline constexpr std::string_view kNoApps = "No applications found.";
inline constexpr std::string_view kLookingForApps = "Looking for applications";
inline constexpr std::string_view kMeasuringApps = "Measuring applications";
inline constexpr std::string_view kLookingForLeftovers = "Looking for leftovers";
inline constexpr std::string_view kLeftoversBy = "Leftovers found by bundle identifier (";
inline constexpr std::string_view kLeftoversByName = "Leftovers found by name (";
inline constexpr std::string_view kNoLeftovers = "No leftovers found.";
inline constexpr std::string_view kNobodysLeftovers = "leftovers are found by --id, --name or both.";
inline constexpr std::string_view kNothingLeftBehind = "Nothing was left behind by apps that are gone.";
inline constexpr std::string_view kByNameLeft =
    "Matched by name only, so they stay; --by-name takes them along:";
inline constexpr std::string_view kAppleApp = "This is an Apple app. Make sure you really want to remove it.";
inline constexpr std::string_view kOtherCopy = "Another copy is installed";
inline constexpr std::string_view kNoApp = "there is no installed application ";
inline constexpr std::string_view kSeveralApps = " names several applications; name one by its path:";
inline constexpr std::string_view kLookingForAdvice = "Looking at what others keep on the disk";
inline constexpr std::string_view kNoAdvice = "Nothing outside Orlen's reach takes up much space.";
inline constexpr std::string_view kBeyondOrlen = " outside Orlen's reach";
inline constexpr std::string_view kOtherDisk = "It is on another disk than your home folder.";
inline constexpr std::string_view kAdviceIsForYou = "Orlen runs none of these commands.";
inline constexpr std::string_view kStartupItems =
    "What starts when you log in. Disabling takes effect now and stays off at the next login.";
inline constexpr std::string_view kNoStartupItems = "No launch agents found.";
inline constexpr std::string_view kAskingServices = "Asking what starts at login";
inline constexpr std::string_view kHowToSwitch =
    "`orlen startup disable ITEM` and `orlen startup enable ITEM` switch an item.";
inline constexpr std::string_view kPartOfDesktop = "Part of your desktop";
inline constexpr std::string_view kNoStartupItem = "there is no startup item ";
inline constexpr std::string_view kSeveralStartupItems =
    " names several startup items; name one by its path:";
inline constexpr std::string_view kSwitchedOn = " is on: it starts at the next login.";
inline constexpr std::string_view kSwitchedOff = " is off now and stays off at the next login.";
inline constexpr std::string_view kNotSwitchedOn = " could not be switched on.";
inline constexpr std::string_view kNotSwitchedOff = " could not be switched off.";
inline constexpr std::string_view kMayBeMissed =
    " is part of your desktop; switch it on again if something is missing.";

} // namespace orlen::Texts

#pragma once

#include "model/Message.h"

#include <chrono>
#include <cstdint>
#include <string>
#include <string_view>

namespace orlen {
struct Exclusion;
}

/// The sentences of the application model. Pure.
namespace orlen::AppTexts {

/// For a command or window that gives up before it starts.
inline constexpr Text kSilentHome =
    message("the home folder lies on a network disk that does not answer; try again when it does.");
inline constexpr Text kSilentTrash =
    message("the Trash or the history lies on a network disk that does not answer, so nothing was moved.");
inline constexpr Text kScanPlanTitle = message("Smart Scan clean-up");

/// One of the program's own files.
struct OwnFile {
    Text damaged;          ///< that it could not be fully parsed
    Text unreadable;       ///< that it could not be read, with the {error}
    std::string_view stem; ///< of the file name
};
inline constexpr OwnFile kHistory{
    message("The history of clean-ups is damaged, so only what is legible of it is used."),
    message("The history of clean-ups could not be read ({error})."), "history"};
inline constexpr OwnFile kExclusions{
    message("The list of exclusions is damaged, so only what is legible of it is used."),
    message("The list of exclusions could not be read ({error})."), "exclusions"};
inline constexpr OwnFile kSnapshots{
    message("The record of past scans is damaged, so only what is legible of it is used."),
    message("The record of past scans could not be read ({error})."), "scans"};
inline constexpr Text kKeptAside =
    // TRANSLATORS: {name} is the name of a file; the dots stand for a number.
    message("{name}.json is kept as {name}.unreadable-….json before a new one is written.");
inline constexpr Text kLeftAsItIs =
    // TRANSLATORS: {name} is the name of a file.
    message("{name}.json is left as it is, and nothing is added to it until it can be.");

/// For a file that could not be fully parsed.
[[nodiscard]] Message damaged(const OwnFile& file);
/// For a file that exists but cannot be read; `error` is the errno.
[[nodiscard]] Message unreadable(const OwnFile& file, int error);

/// On a photo of a set of similar ones, of which the user keeps another than the scan proposed.
inline constexpr Text kYouKeep =
    // TRANSLATORS: {name} is a file's.
    message("Similar to {name} — the one you keep");

// On the file that stays of a set, where it is listed for another reason.
inline constexpr Text kKeptOfIdentical = message("Orlen keeps this one of identical files");
inline constexpr Text kKeptOfSimilar = message("Orlen keeps this one of similar photos");

inline constexpr Text kRestored = messages("Restored {count} item.", "Restored {count} items.");
inline constexpr Text kPartlyRestored = messages(
    // TRANSLATORS: {count} is how many items couldn't be restored, {restored} how many were.
    "Restored {restored}; {count} couldn't be restored (already emptied from the Trash, or something exists "
    "at the original location).",
    "Restored {restored}; {count} couldn't be restored (already emptied from the Trash, or something exists "
    "at the original location).");

/// The outcome of a restore.
[[nodiscard]] Message restored(int restored, int failed);

/// For a service that a clean-up could not switch off before moving its file.
inline constexpr Text kStillOn =
    // TRANSLATORS: {service} is the name of a unit, such as "sync.service".
    message("{service} couldn't be switched off; it may run until you log out.");
[[nodiscard]] Message stillOn(const std::string& service);

inline constexpr Text kUnreadableFolders =
    messages("{count} folder could not be read", "{count} folders could not be read");
/// "2 folders could not be read"
[[nodiscard]] Message unreadableFolders(std::int64_t count);

// How much of a step of a scan is done, and how long it will still take.
inline constexpr Text kBytesDone = message("{done} of {total}");
[[nodiscard]] Message bytesDone(std::int64_t done, std::int64_t total);
inline constexpr Text kMinutesLeft = messages("{count} minute left", "{count} minutes left");
inline constexpr Text kNearlyDone = message("Less than a minute left");
[[nodiscard]] Message timeLeft(std::chrono::duration<double> time);

/// The title of a clean-up in the history, which keeps it in English. One that no plan has is taken as it is.
[[nodiscard]] Message titleOf(const std::string& kept);

// What is excluded. {what} is a path or a quoted name.
inline constexpr Text kPath = messageIn("kind of exclusion", "Path");
inline constexpr Text kName = messageIn("kind of exclusion", "Name");
inline constexpr Text kNothingExcluded = message("Nothing is excluded.");
inline constexpr Text kNowExcluded = message("{what} is excluded: it is neither offered nor moved.");
inline constexpr Text kNameNowExcluded =
    message("{what} is excluded: no entry of this name is offered or moved; a folder that only holds one may "
            "be.");
inline constexpr Text kNoLongerExcluded = message("{what} is no longer excluded.");

/// That the line was added to the list, and that it was removed.
[[nodiscard]] Message nowExcluded(const Exclusion& exclusion);
[[nodiscard]] Message noLongerExcluded(const Exclusion& exclusion);

// What is done with a path, and why.
inline constexpr Text kNotThere = message("nothing there");
// TRANSLATORS: {what} is a heading such as "Browser profiles"; {why} is a sentence.
inline constexpr Text kProtected = message("Protected, {what}: {why}");
inline constexpr Text kExcludedByPath = message("Excluded by {path}: neither offered nor moved.");
inline constexpr Text kExcludedByName = message("Excluded by the name {name}: neither offered nor moved.");
// TRANSLATORS: follows the sentence that something is excluded; findings that would offer it follow.
inline constexpr Text kOtherwise = message("Otherwise it would be:");
// TRANSLATORS: "App caches, Safe: Browser cache, rebuilt as you browse."
inline constexpr Text kOffer = message("{finding}, {rating}: {why}");
// TRANSLATORS: {path} is the folder around what was asked for, {size} its size.
inline constexpr Text kMovesWith = message("Moves with {path}, {size}.");
inline constexpr Text kOfferedNowhere =
    message("Not protected, and no known place offers it. Whether it is a duplicate or a photo to review, a "
            "scan tells.");

// What the command line and the window both say.
inline constexpr Text kSafelyFree = message("You can safely free {size}");
inline constexpr Text kNothingSafe = message("Nothing is rated Safe right now");
inline constexpr Text kOnOtherDisk = message("It is on another disk than your home folder.");
// TRANSLATORS: So many items of a clean-up are back where they were.
inline constexpr Text kRestoredCount = messages("{count} restored", "{count} restored");
// TRANSLATORS: {id} is an identifier such as org.example.App.
inline constexpr Text kLeftoversByIdentifier = message("Leftovers found by bundle identifier ({id})");
inline constexpr Text kLeftoversByName = message("Leftovers found by name");

} // namespace orlen::AppTexts

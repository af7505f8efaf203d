#pragma once

#include "model/Text.h"

/// What an answer says of things that are not done yet.
namespace orlen::InsightTexts {

inline constexpr Text kWouldFree =
    // TRANSLATORS: {what} is a list such as "videos over 3 GB, ubuntu.iso".
    messages("Without {what} you would have {size} more ({count} item).",
             "Without {what} you would have {size} more ({count} items).");
inline constexpr Text kEmptyingTrash = messages("Emptying the Trash would free {size} ({count} item).",
                                                "Emptying the Trash would free {size} ({count} items).");
// TRANSLATORS: {rating} is "Safe", "Review" or "Keep".
inline constexpr Text kEverythingRated = messageIn("files, within a sentence", "everything rated {rating}");
// TRANSLATORS: {now} and {then} are sizes; follows a sentence about what would be removed.
inline constexpr Text kFreeThen =
    message("{now} is free now; it would be about {then} once the Trash is emptied.");
// TRANSLATORS: {date} is a day, {size} what is going to be filled until then.
inline constexpr Text kFilledUntil = message("By {date} about {size} more will be used at the present pace.");
inline constexpr Text kNoRhythm = message(
    "There is no fixed rhythm: look when space gets short, or when a scan finds much that is rated Safe.");
inline constexpr Text kNoRights =
    message("Orlen works as you, in your own folders, and never needs administrator rights.");
inline constexpr Text kNoEmptyFolders =
    message("Orlen doesn't look for empty folders: they take up next to no space.");
inline constexpr Text kBuildOutput = messageIn("files, within a sentence", "what builds have made");
inline constexpr Text kVirtualEnvironments =
    messageIn("files, within a sentence", "virtual environments of Python");
inline constexpr Text kPhotoCopies = messageIn("files, within a sentence", "exact copies of photos");

} // namespace orlen::InsightTexts

#pragma once

#include "model/Text.h"

/// What answers say about applications and what starts at login.
namespace orlen::InsightTexts {

inline constexpr Text kAppsWithTotal =
    messages("Orlen lists {count} application; with its data it takes {size}.",
             "Orlen lists {count} applications; with their data they take {size}.");
inline constexpr Text kAppUsedOn = message("It was last used on {date}.");
inline constexpr Text kFlatpakApps = messageIn("files, within a sentence", "installed Flatpak applications");
inline constexpr Text kSnapApps = messageIn("files, within a sentence", "installed Snaps");
inline constexpr Text kSteamGames = messageIn("files, within a sentence", "games of Steam");
// TRANSLATORS: {name} is a program.
inline constexpr Text kStartsAtLogin = message("{name} starts when you log in.");
inline constexpr Text kIsSwitchedOff = message("{name} is switched off.");
inline constexpr Text kStartsNot = message("“{name}” is not among what starts when you log in.");
inline constexpr Text kStartupSwitch =
    // TRANSLATORS: "orlen startup" is a command.
    message("Startup Items has a switch for it, and so does “orlen startup”.");

inline constexpr Text kUseNotNoted =
    message("When an application was last used has not been noted on this computer.");
// TRANSLATORS: {name} is a program; follows a sentence about its size.
inline constexpr Text kItsUseNotNoted = message("When {name} was last used has not been noted.");
inline constexpr Text kOnlyWhileOpen =
    message("Orlen works only while it is open: nothing of it runs in the background.");
inline constexpr Text kOwnRemoval =
    message("Orlen doesn't remove itself: use what you installed it with, such as the package manager.");

} // namespace orlen::InsightTexts

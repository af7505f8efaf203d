#pragma once

#include <string_view>

/// Texts about startup items that are made below the screens.
namespace orlen::StartupTexts {

inline constexpr std::string_view kYourAccount = "Your account";
inline constexpr std::string_view kAllUsers = "All users";

// Why an item cannot be switched.
inline constexpr std::string_view kLinkedEntry =
    "Its file is a link; change the file that the link points to.";
inline constexpr std::string_view kOthersEntry = "Its file belongs to another user.";
inline constexpr std::string_view kMaskedElsewhere = "It is masked in a place that Orlen doesn't change.";
inline constexpr std::string_view kNoAgentTool = "This system does not run launch agents.";

// Why opening at login could not be switched, after a colon.
inline constexpr std::string_view kSandboxed =
    "in this sandbox it can only be set in the desktop's own settings.";
inline constexpr std::string_view kUnusableHome = "the home folder is missing or belongs to somebody else.";
inline constexpr std::string_view kForeignEntry =
    "something that Orlen didn't make stands in place of its autostart entry.";
inline constexpr std::string_view kUnwritablePath = "no autostart entry can hold the path of the program.";
inline constexpr std::string_view kUnwritableFolder = "the autostart folder can't be written to.";

} // namespace orlen::StartupTexts

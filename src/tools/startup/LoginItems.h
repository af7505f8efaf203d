#pragma once

#include <optional>
#include <string>
#include <vector>

/// What the desktop opens at login, and whether this program is among it. Blocks on the disk; any thread.
namespace orlen::LoginItems {

/// Names of the enabled entries of this desktop; nothing when no folder of them can be read.
[[nodiscard]] std::optional<std::vector<std::string>> names();

/// The command that shows the desktop's own settings page for them: the first that exists, else one that
/// opens the folder of the user's entries. Empty when neither can be done.
[[nodiscard]] std::vector<std::string> settingsCommand();

/// Whether this program opens at login: its entry exists, is not hidden and starts a program that exists.
[[nodiscard]] bool isRegistered();

/// Makes this program open at login, or no longer. Nothing when that worked, else what went wrong, as one
/// phrase for the user.
[[nodiscard]] std::optional<std::string> setRegistered(bool registered);

} // namespace orlen::LoginItems

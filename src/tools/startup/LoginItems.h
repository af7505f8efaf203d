#pragma once

#include "model/Text.h"

#include <optional>
#include <string>
#include <vector>

/// What the desktop opens at login, and whether this program is included. Blocks on the disk; any thread.
namespace orlen::LoginItems {

/// Names of the enabled entries; nothing if no autostart folder can be read.
[[nodiscard]] std::optional<std::vector<std::string>> names();

/// The command that opens the desktop's own settings page for them. Empty if it has none.
[[nodiscard]] std::vector<std::string> settingsCommand();

/// Whether this program opens at login: its entry exists, is not hidden and starts an existing program.
[[nodiscard]] bool isRegistered();

/// Makes this program open at login, or stops it. Nothing on success, else what went wrong, as a phrase for
/// the user.
[[nodiscard]] std::optional<Text> setRegistered(bool registered);

} // namespace orlen::LoginItems

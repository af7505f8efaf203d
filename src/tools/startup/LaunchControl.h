#pragma once

#include "tools/startup/LaunchItem.h"

#include <optional>
#include <string>
#include <vector>

/// What starts when the user logs in, and its switches. Blocks on child processes; any thread.
namespace orlen::LaunchControl {

/// Runs the launch agents' tool and returns its standard output; nothing when it cannot be started or its
/// output is not UTF-8.
[[nodiscard]] std::optional<std::string> run(const std::vector<std::string>& arguments);

/// Launch agents of the user, units of the user, entries of the user, then the same of all users.
[[nodiscard]] std::vector<LaunchItem> load();

/// Switches an item on or off; off stops it now as well. Whether the change was made:
/// never for one that is not switchable.
bool set(const LaunchItem& item, bool enabled);

} // namespace orlen::LaunchControl

#pragma once

#include "tools/startup/LaunchItem.h"

#include <vector>

/// What starts when the user logs in, and its switches. Blocks on child processes; any thread.
namespace orlen::LaunchControl {

/// Launch agents of the user, units of the user, entries of the user, then the same of all users.
[[nodiscard]] std::vector<LaunchItem> load();

/// Switches an item on or off; off stops it now as well. Whether the change was made:
/// never for one that is not switchable.
bool set(const LaunchItem& item, bool enabled);

} // namespace orlen::LaunchControl

#pragma once

#include "tools/startup/LaunchItem.h"

#include <vector>

/// Lists and switches what starts when the user logs in. Blocks on child processes; any thread.
namespace orlen::LaunchControl {

/// The user's own launch agents, units and entries, then those for all users.
[[nodiscard]] std::vector<LaunchItem> load();

/// Turns an item on or off; off also stops it now. Whether it worked; never for one that is not switchable.
bool set(const LaunchItem& item, bool enabled);

} // namespace orlen::LaunchControl

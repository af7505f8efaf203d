#pragma once

#include "tools/apps/AppInfo.h"

#include <vector>

/// Applications that Snap keeps. Blocks on the disk.
namespace orlen::Snaps {

/// One for each snap with a launcher.
[[nodiscard]] std::vector<AppInfo> installed();

} // namespace orlen::Snaps

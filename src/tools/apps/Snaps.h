#pragma once

#include "tools/apps/AppInfo.h"

#include <vector>

/// Applications managed by Snap. Blocks on the disk.
namespace orlen::Snaps {

/// One per snap with a launcher.
[[nodiscard]] std::vector<AppInfo> installed();

} // namespace orlen::Snaps

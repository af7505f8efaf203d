#pragma once

#include "tools/apps/AppInfo.h"

#include <string>
#include <vector>

/// Applications managed by Snap, and the data of removed ones. Blocks on the disk.
namespace orlen::Snaps {

/// One per snap with a launcher.
[[nodiscard]] std::vector<AppInfo> installed();

/// The user's data of a snap that is no longer installed.
struct Removed {
    std::string name;
    /// What may move: the folders in "snap/NAME", which itself stays, or the one folder in ".snap/data".
    std::vector<std::string> folders;
};
/// Sorted by name. None when it cannot be told which snaps are installed.
[[nodiscard]] std::vector<Removed> removed();

} // namespace orlen::Snaps

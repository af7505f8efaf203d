#pragma once

#include "scan/tree/DiskWorkers.h"
#include "scan/tree/TreeSum.h"

#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class UnreadableFolders;

/// The size of each path: of a file, or of all regular files below a folder. 0 if it is missing or cannot be
/// read. All paths form one job for the pool; if stopped, returns what it has. `unreadable`
/// collects folders that could not be read.
[[nodiscard]] std::vector<TreeSize> measureTrees(std::span<const std::string> paths,
                                                 const std::stop_token& stop,
                                                 DiskWorkers::Priority priority = DiskWorkers::Priority::user,
                                                 UnreadableFolders* unreadable = nullptr);

} // namespace orlen

#pragma once

#include "scan/tree/DiskWorkers.h"

#include <atomic>
#include <cstdint>
#include <span>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class UnreadableFolders;

/// Allocated bytes of each path: of a file, or of all regular files below a folder. 0 if it is missing or
/// cannot be read. All paths form one job for the pool; if stopped, returns what it has. `unreadable`
/// collects folders that could not be read.
[[nodiscard]] std::vector<std::int64_t>
measureTrees(std::span<const std::string> paths, const std::stop_token& stop,
             DiskWorkers::Priority priority = DiskWorkers::Priority::user,
             UnreadableFolders* unreadable = nullptr);

/// Adds to a sum shared by several threads; aborts on overflow.
void addTo(std::atomic<std::int64_t>& sum, std::int64_t bytes);

} // namespace orlen

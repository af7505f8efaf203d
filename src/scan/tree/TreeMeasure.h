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

/// Allocated bytes of each path: of the file itself, or of all regular files below a folder. 0 for what is
/// missing or cannot be read. All paths are one shared-out job; a stopped one returns what it has.
/// `unreadable` is told of folders that could not be read.
[[nodiscard]] std::vector<std::int64_t>
measureTrees(std::span<const std::string> paths, const std::stop_token& stop,
             DiskWorkers::Priority priority = DiskWorkers::Priority::user,
             UnreadableFolders* unreadable = nullptr);

/// Adds to a sum that several threads add to; stops the program on overflow.
void addTo(std::atomic<std::int64_t>& sum, std::int64_t bytes);

} // namespace orlen

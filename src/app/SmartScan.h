#pragma once

#include "model/Finding.h"
#include "scan/FolderTotals.h"
#include "scan/StorageBreakdown.h"

#include <stop_token>
#include <vector>

namespace orlen {

class ScanEngine;

/// What a worker does for the results. Blocks on the disk; any thread, whose priority it lowers.
namespace SmartScan {

struct Outcome {
    std::vector<Finding> findings; ///< rated; none when the engine was stopped
    StorageBreakdown breakdown;
    FolderReading folders; ///< without its date
};

/// Runs the engine, and measures the storage beside it.
[[nodiscard]] Outcome run(ScanEngine& engine);

/// The finding of what the Trash holds now, none when it is empty.
[[nodiscard]] std::vector<Finding> trash(const std::stop_token& stop);

} // namespace SmartScan
} // namespace orlen

#pragma once

#include "platform/values/Time.h"

#include <cstdint>
#include <string>
#include <vector>

namespace orlen {

struct FolderSize {
    std::string path;       ///< in the form all rules compare; valid UTF-8
    std::int64_t bytes = 0; ///< allocated, with everything in it that the scan measured

    friend bool operator==(const FolderSize&, const FolderSize&) = default;
};

/// What the larger folders held at the end of a scan, the basis for telling what grew.
struct FolderReading {
    TimePoint date;
    /// Bytes; every measured folder of at least this size is listed.
    std::int64_t least = 0;
    std::vector<FolderSize> folders; ///< sorted by path, each once

    friend bool operator==(const FolderReading&, const FolderReading&) = default;
};

/// Which readings are kept. Pure; any thread.
namespace FolderReadings {

/// How many are kept at most.
inline constexpr std::size_t kMost = 400;

/// Adds the newest reading, and keeps those of the last week, the last one of each day of the last month, and
/// of each week of the last two years. The readings are and stay sorted by date. A few from the future were
/// left by a wrong clock and are dropped; if there are many, the clock is wrong now, and nothing is added.
void add(std::vector<FolderReading>& readings, FolderReading newest);

} // namespace FolderReadings
} // namespace orlen

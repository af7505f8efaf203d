#pragma once

#include "model/OrlenCategory.h"
#include "scan/CategoryFolder.h"

#include <cstdint>
#include <map>
#include <stop_token>
#include <vector>

namespace orlen {

class FolderTotals;

/// How the space of the start-up volume is used. Empty until computed.
struct StorageBreakdown {
    std::int64_t total = 0; ///< capacity, bytes
    std::int64_t free = 0;  ///< available, bytes
    std::map<OrlenCategory, std::int64_t> cats;
    /// What the categories consist of, largest first: folders that take up space. None for `system`, which is
    /// not measured; see `SystemFolders`.
    std::vector<CategoryFolder> folders;

    struct Space {
        std::int64_t total = 0;
        std::int64_t free = 0;
    };
    /// Capacity and free bytes of the home folder's file system; zeros if unknown. Quick.
    [[nodiscard]] static Space volume();

    /// Measures all categories; `system` is the rest, at least 0. Blocks on the disk: never call from the
    /// main thread. If stopped, the sums are too small and the caller discards them.
    [[nodiscard]] static StorageBreakdown compute(const std::stop_token& stop = {});
    /// The same; `totals`, which must be new, receives what the folders hold.
    [[nodiscard]] static StorageBreakdown compute(const std::stop_token& stop, FolderTotals& totals);

    friend bool operator==(const StorageBreakdown&, const StorageBreakdown&) = default;
};

} // namespace orlen

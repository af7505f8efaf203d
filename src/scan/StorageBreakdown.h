#pragma once

#include "model/OrlenCategory.h"

#include <cstdint>
#include <map>
#include <stop_token>

namespace orlen {

/// How the start-up volume's space is used. Empty until the first computation has finished.
struct StorageBreakdown {
    std::int64_t total = 0; ///< capacity, bytes
    std::int64_t free = 0;  ///< available, bytes
    std::map<OrlenCategory, std::int64_t> cats;

    struct Space {
        std::int64_t total = 0;
        std::int64_t free = 0;
    };
    /// Capacity and free bytes of the file system that holds the home folder; zeros when it cannot tell.
    /// Quick.
    [[nodiscard]] static Space volume();

    /// Measures all categories; `system` is what they do not explain, at least 0. Blocks on the disk: never
    /// call from the main thread. A stopped computation returns sums that are too small: the caller drops
    /// them.
    [[nodiscard]] static StorageBreakdown compute(const std::stop_token& stop = {});

    friend bool operator==(const StorageBreakdown&, const StorageBreakdown&) = default;
};

} // namespace orlen

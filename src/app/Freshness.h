#pragma once

#include "platform/values/Time.h"

#include <cstdint>

namespace orlen {

/// Whether the results of a scan still tell what there is.
enum class Freshness {
    fresh,
    otherThreshold, ///< another size was chosen from which a file counts as large
    diskChanged,    ///< much more or less is free than then
    old,            ///< a day has passed, or more
};

/// What a scan saw, or what there is now.
struct ScanMoment {
    TimePoint time;
    std::int64_t free = 0;           ///< bytes free on the volume; 0: unknown
    std::int64_t total = 0;          ///< bytes of the volume
    std::int64_t largeThreshold = 0; ///< bytes
};

/// Pure; any thread.
[[nodiscard]] Freshness freshness(const ScanMoment& then, const ScanMoment& now);

} // namespace orlen

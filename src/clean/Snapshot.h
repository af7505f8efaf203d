#pragma once

#include "platform/values/Time.h"

#include <cstdint>
#include <map>
#include <string>

namespace orlen {

/// Disk usage at one moment, the basis for forecasts.
struct Snapshot {
    TimePoint date;
    std::int64_t free = 0;                    ///< bytes
    std::int64_t total = 0;                   ///< bytes
    std::map<std::string, std::int64_t> cats; ///< bytes by raw value of OrlenCategory

    friend bool operator==(const Snapshot&, const Snapshot&) = default;
};

} // namespace orlen

#pragma once

#include "platform/values/Result.h"

#include <cstdint>
#include <string>

namespace orlen {

struct VolumeSpace {
    std::int64_t total = 0; ///< bytes
    std::int64_t free = 0;  ///< bytes available to the user
};

/// Capacity of the file system that holds `path`. Any thread; may block on a network file system.
[[nodiscard]] Result<VolumeSpace> volumeSpace(const std::string& path);

} // namespace orlen

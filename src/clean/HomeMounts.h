#pragma once

#include "platform/files/Places.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// What is mounted below the home folder at one moment, as paths in the form that rules compare. The file
/// system that holds the home folder itself is not among it, whatever its type.
struct HomeMounts {
    std::vector<std::string> points; ///< every mount point
    std::vector<std::string>
        foreign; ///< those whose contents must not be touched: asking a dead server blocks

    /// Whether a path is or lies below a foreign mount point.
    [[nodiscard]] bool isForeign(std::string_view path) const;

    /// Reads the kernel's mount table; empty when it cannot be read.
    [[nodiscard]] static HomeMounts read(const Places& places);
};

} // namespace orlen

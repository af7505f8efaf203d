#pragma once

#include "platform/files/Places.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The mounts below the home folder at one moment, as paths in the form rules compare. The file system of the
/// home folder itself is never among them.
struct HomeMounts {
    std::vector<std::string> points;  ///< every mount point
    std::vector<std::string> foreign; ///< those that must not be touched: a dead server would block

    /// Whether a path is a foreign mount point or below one.
    [[nodiscard]] bool isForeign(std::string_view path) const;

    /// Reads the kernel's mount table; empty if it cannot be read.
    [[nodiscard]] static HomeMounts read(const Places& places);
};

} // namespace orlen

#pragma once

#include "scan/HomeFiles.h"

#include <memory>
#include <stop_token>

namespace orlen {

/// Takes stock of the home folder in one walk. Network disks are not entered and links not followed. Blocks
/// on the disk: never call from the main thread.
namespace HomeWalk {

/// What is kept of a home folder with more than that; sums and counts are always whole.
struct Limits {
    std::size_t files = 500'000;
    std::size_t folders = 500'000;
};

/// Null if stopped; without files if the home folder cannot be read.
[[nodiscard]] std::shared_ptr<const HomeFiles> walk(const std::stop_token& stop, Limits limits = {});

} // namespace HomeWalk
} // namespace orlen

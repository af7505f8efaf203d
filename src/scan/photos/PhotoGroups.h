#pragma once

#include "scan/photos/PhotoAnalyzer.h"

#include <cstddef>
#include <stop_token>
#include <vector>

/// Finds photos that look alike. Any thread.
namespace orlen::PhotoGroups {

/// Places in the list of photos.
struct Group {
    std::size_t keeper = 0;
    std::vector<std::size_t> others; ///< ascending
};

/// The groups of two and more in the order of their first members. Each photo is compared with the first
/// member of each group before it, and joins the first one that it resembles. A stopped search returns what
/// it has.
[[nodiscard]] std::vector<Group> of(const std::vector<PhotoInfo>& photos, const std::stop_token& stop);

} // namespace orlen::PhotoGroups

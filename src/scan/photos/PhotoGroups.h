#pragma once

#include "scan/photos/PhotoAnalyzer.h"

#include <cstddef>
#include <stop_token>
#include <vector>

/// Finds photos that look alike. Any thread.
namespace orlen::PhotoGroups {

/// Indices into the list of photos.
struct Group {
    std::size_t keeper = 0;
    std::vector<std::size_t> others; ///< ascending
};

/// The clusters of two or more photos, see PhotoClusters, ordered by their first members. Returns what it has
/// when stopped.
[[nodiscard]] std::vector<Group> of(const std::vector<PhotoInfo>& photos, const std::stop_token& stop);

} // namespace orlen::PhotoGroups

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

/// Groups of two or more, ordered by their first members. Each photo is compared with the first member of
/// each earlier group and joins the first one it resembles; where very many have nearly its layout, with the
/// nearest of them. Pictures without a print and damaged ones are in
/// none. Returns what it has when stopped.
[[nodiscard]] std::vector<Group> of(const std::vector<PhotoInfo>& photos, const std::stop_token& stop);

} // namespace orlen::PhotoGroups

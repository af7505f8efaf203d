#pragma once

#include "scan/photos/PhotoAnalyzer.h"
#include "scan/photos/UnpackedTiles.h"

#include <cstddef>
#include <stop_token>
#include <vector>

/// Puts photos that look alike together. Any thread; uses all cores.
namespace orlen::PhotoClusters {

/// Indices into the list of photos, ascending.
using Members = std::vector<std::size_t>;

/// In the order of their first members; a photo that resembles no other is alone. Each photo is compared with
/// the first members of the clusters so far whose layouts are nearest to its own, eight at most and only five
/// of them closely, in a crowd of pages of one layout only one. It joins the first one it resembles. Pictures
/// without a print and damaged ones are in none. What there is when stopped.
[[nodiscard]] std::vector<Members> of(const std::vector<PhotoInfo>& photos, UnpackedTiles& tiles,
                                      const std::stop_token& stop);

} // namespace orlen::PhotoClusters

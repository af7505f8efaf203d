#pragma once

#include "scan/photos/BlockSearch.h"
#include "scan/photos/GreyPicture.h"

#include <vector>

/// Looks up the words of a page in another picture of its size, which lies over it but may be bent. Pure; any
/// thread.
namespace orlen::WordSearch {

inline constexpr int kBlock = 16; ///< pixels: some letters

struct Found {
    TilePlace block;       ///< of the page
    float correlation = 0; ///< with what is there, -1 to 1
};

/// For each block of the page that has ink.
[[nodiscard]] std::vector<Found> found(const GreyPicture& page, const GreyPicture& other);

} // namespace orlen::WordSearch

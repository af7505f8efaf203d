#pragma once

#include "platform/images/FeaturePrint.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

/// A place in a tile: of a pixel, or of the upper left pixel of a block.
struct TilePlace {
    int x = 0; ///< pixels
    int y = 0; ///< pixels
};

/// Where a block of one tile was found in another.
struct BlockFind {
    TilePlace block;
    float moveX = 0;       ///< pixels
    float moveY = 0;       ///< pixels
    float texture = 0;     ///< standard deviation of the block's pixels
    float correlation = 0; ///< 0 to 1
};

/// Finds blocks of one tile in another by normalised cross-correlation: both blocks are centred and divided
/// by their standard deviation, so that brightness and contrast cancel out. Sums over all block positions are
/// prepared once per tile, which leaves one dot product per place tried. About 100 kB. Pure; any thread.
class BlockSearch {
public:
    static constexpr int kSide = FeaturePrint::kTileSide;
    static constexpr int kBlock = 16; ///< pixels

    explicit BlockSearch(const FeaturePrint::Tile& tile);

    /// The blocks with enough structure to be found again, the strongest first.
    [[nodiscard]] std::vector<TilePlace> texturedBlocks() const;

    /// The best match of this tile's block in the other tile, at most `reach` pixels away in each direction.
    [[nodiscard]] BlockFind find(TilePlace block, const BlockSearch& other, int reach) const;

private:
    static constexpr int kPlaces = kSide - kBlock + 1; ///< of a block along a side

    /// What the correlation of a block needs, at all places, rows from the top.
    struct Blocks {
        std::vector<float> sums;             ///< of its pixels
        std::vector<float> deviations;       ///< standard, times the number of pixels
        std::vector<float> onesByDeviations; ///< with some noise added
    };

    [[nodiscard]] const std::int16_t* pixel(TilePlace place) const
    {
        return m_pixels.data() + static_cast<std::size_t>(place.y) * kSide +
               static_cast<std::size_t>(place.x);
    }
    [[nodiscard]] static std::size_t index(TilePlace block)
    {
        return static_cast<std::size_t>(block.y) * kPlaces + static_cast<std::size_t>(block.x);
    }
    void sumUpBlocks();

    std::array<std::int16_t, static_cast<std::size_t>(kSide) * kSide> m_pixels{}; ///< around 0
    Blocks m_blocks;
};

} // namespace orlen

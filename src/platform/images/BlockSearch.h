#pragma once

#include "platform/images/FeaturePrint.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

/// Where a block of one tile was found in another.
struct BlockFind {
    float x = 0;           ///< the block's middle, -1 to 1 from side to side
    float y = 0;           ///< as x
    float moveX = 0;       ///< pixels
    float moveY = 0;       ///< pixels
    float texture = 0;     ///< standard deviation of the block's pixels
    float correlation = 0; ///< 0 to 1
};

/// A tile made ready for searching. Pure; any thread.
class BlockSearch {
public:
    explicit BlockSearch(const FeaturePrint::Tile& tile);

    /// For each block of this tile with structure, its best place near its own in the other tile.
    [[nodiscard]] std::vector<BlockFind> findIn(const BlockSearch& other) const;

private:
    static constexpr int kSide = FeaturePrint::kTileSide;
    static constexpr int kBlock = 16; ///< pixels
    static constexpr int kReach = 9;  ///< pixels that a block is looked for to each side

    struct Place {
        int x = 0;
        int y = 0;
    };
    /// Sums over one block.
    struct Sums {
        std::int32_t values = 0;
        std::int32_t spread = 0; ///< of the squares, less what their mean makes up; times the pixels' number
    };

    [[nodiscard]] const std::int16_t* pixel(Place place) const
    {
        return m_pixels.data() + static_cast<std::size_t>(place.y) * kSide +
               static_cast<std::size_t>(place.x);
    }
    [[nodiscard]] Sums& sumsAt(Place place);
    [[nodiscard]] const Sums& sumsAt(Place place) const;
    [[nodiscard]] BlockFind bestFind(Place block, const BlockSearch& other) const;

    static constexpr int kPlaces = kSide - kBlock + 1;
    std::array<std::int16_t, static_cast<std::size_t>(kSide) * kSide> m_pixels{}; ///< around 0
    std::array<Sums, static_cast<std::size_t>(kPlaces) * kPlaces> m_sums{};
};

} // namespace orlen

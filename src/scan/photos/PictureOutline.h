#pragma once

#include "platform/images/FeaturePrint.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace orlen {

/// What a quick look at a tile needs: which pixels are dark in half its size, and which blocks have the most
/// structure. 0.6 kB, so that those of a whole library can be kept. Pure; any thread.
class PictureOutline {
public:
    explicit PictureOutline(const FeaturePrint::Tile& tile);

    static constexpr int kSide = FeaturePrint::kTileSide / 2; ///< pixels
    static constexpr int kBlock = 8;                          ///< pixels
    static constexpr std::size_t kMostBlocks = 32;

    struct Block {
        std::uint8_t left = 0;    ///< pixels
        std::uint8_t top = 0;     ///< pixels
        std::uint8_t texture = 0; ///< standard deviation of the tile's pixels, in halves
    };

    /// A bit for each pixel of each row, the left one the lowest.
    [[nodiscard]] const std::array<std::uint64_t, kSide>& rows() const { return m_rows; }
    /// The strongest first.
    [[nodiscard]] std::span<const Block> blocks() const { return std::span(m_blocks).first(m_count); }

private:
    std::array<std::uint64_t, kSide> m_rows{};
    std::array<Block, kMostBlocks> m_blocks{};
    std::uint8_t m_count = 0;
};

} // namespace orlen

#pragma once

#include "platform/images/TileCode.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <span>

namespace orlen {

/// What a quick look at a tile needs: which pixels are dark in half its size, and which blocks have the most
/// structure. 0.6 kB, so that those of a whole library can be kept. Pure; any thread.
class PictureOutline {
public:
    static constexpr int kSide = TileCode::kSide / 2; ///< pixels
    static constexpr int kBlock = 8;                  ///< pixels
    static constexpr std::size_t kMostBlocks = 32;

    struct Block {
        std::uint8_t left = 0;    ///< pixels
        std::uint8_t top = 0;     ///< pixels
        std::uint8_t texture = 0; ///< standard deviation of the tile's pixels, in halves

        [[nodiscard]] bool isInside() const
        {
            constexpr int kLast = kSide - kBlock;
            return left <= kLast && top <= kLast;
        }
        friend bool operator==(const Block&, const Block&) = default;
    };
    using Rows = std::array<std::uint64_t, kSide>;
    /// The tile in half its size.
    using Half = std::array<std::uint8_t, std::size_t{kSide} * kSide>;

    explicit PictureOutline(const TileCode::Tile& tile);
    /// As another one tells. The blocks are inside; of more than the most, the first are taken.
    PictureOutline(const Rows& rows, std::span<const Block> blocks);

    [[nodiscard]] static Half halved(const TileCode::Tile& tile);

    /// A bit for each pixel of each row, the left one the lowest.
    [[nodiscard]] const Rows& rows() const { return m_rows; }
    /// The strongest first.
    [[nodiscard]] std::span<const Block> blocks() const { return std::span(m_blocks).first(m_count); }

    friend bool operator==(const PictureOutline&, const PictureOutline&) = default;

private:
    Rows m_rows{};
    std::array<Block, kMostBlocks> m_blocks{};
    std::uint8_t m_count = 0;
};

} // namespace orlen

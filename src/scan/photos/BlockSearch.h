#pragma once

#include "platform/images/FeaturePrint.h"
#include "scan/photos/PixelPairs.h"

#include <array>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <vector>

namespace orlen {

/// A place in a picture: of a pixel, or of the upper left pixel of a block.
struct TilePlace {
    int x = 0; ///< pixels
    int y = 0; ///< pixels
};

/// Where a block of one tile was found in another. All in pixels of the tile, whatever was searched.
struct BlockFind {
    TilePlace block;
    float moveX = 0;
    float moveY = 0;
    float texture = 0;     ///< standard deviation of the block's pixels
    float correlation = 0; ///< 0 to 1
};

/// Finds blocks of one tile, or of its preview, in another by normalised cross-correlation: both blocks are
/// centred and divided by their standard deviation, so that brightness and contrast cancel out. Sums over all
/// block positions are prepared once, which leaves one dot product per place tried. About 320 kB for a tile.
/// Pure; any thread.
template <int side, int block>
class BlockSearch {
public:
    static constexpr int kSide = side;                            ///< pixels
    static constexpr int kBlock = block;                          ///< pixels
    static constexpr int kScale = FeaturePrint::kTileSide / side; ///< pixels of the tile in one, along a side

    using Pixels = std::array<std::uint8_t, static_cast<std::size_t>(side) * side>;

    explicit BlockSearch(const Pixels& pixels);
    /// Only for finding blocks of a `texturedBlocks` in it that have moved at most `reach` pixels.
    BlockSearch(const Pixels& pixels, int reach);

    /// The blocks with enough structure to be found again, the strongest first.
    [[nodiscard]] const std::vector<TilePlace>& texturedBlocks() const { return m_texturedBlocks; }

    /// Standard deviation of a block's pixels.
    [[nodiscard]] float texture(TilePlace place) const
    {
        return std::sqrt(m_spreads[index(place)]) / kPixels;
    }

    /// The best match of this one's block in the other one, at most `reach` pixels away in each direction.
    /// What is found does not depend on the move that is guessed, but a good guess halves the time.
    [[nodiscard]] BlockFind find(TilePlace place, const BlockSearch& other, int reach,
                                 TilePlace guessedMove = {}) const;

private:
    static constexpr int kPlaces = side - block + 1; ///< of a block along a side
    static constexpr int kPixels = block * block;
    static constexpr int kQuarter = block / 4; ///< rows

    static constexpr std::size_t kMargin = std::size_t{6} * kLanes;
    static constexpr std::size_t kAllPlaces = static_cast<std::size_t>(kPlaces) * kPlaces;

    [[nodiscard]] const PixelPair* pair(TilePlace place) const
    {
        return m_pairs.data() + static_cast<std::size_t>(place.y) * side + static_cast<std::size_t>(place.x);
    }
    [[nodiscard]] static std::size_t index(TilePlace place)
    {
        return static_cast<std::size_t>(place.y) * kPlaces + static_cast<std::size_t>(place.x);
    }

    /// A block that is looked for, and the best find so far.
    struct Sought {
        TilePlace place;
        TilePlace best;
        float most = 0; ///< the square, which needs no root for each place
        /// Lengths of what follows a quarter and a half of the block.
        std::array<float, 2> rests{};
    };
    [[nodiscard]] Sought soughtAt(TilePlace place) const;
    template <typename Lanes, std::size_t count>
    using Common = std::array<typename Lanes::Ints, count>;
    template <typename Lanes, std::size_t count>
    void addRows(Common<Lanes, count>& common, const Sought& sought, const BlockSearch& other,
                 TilePlace first, int row, int end) const;
    template <typename Lanes, std::size_t count>
    [[nodiscard]] bool mayBeBetter(const Common<Lanes, count>& common, const Sought& sought,
                                   const BlockSearch& other, TilePlace first, std::size_t looks) const;
    template <typename Lanes, std::size_t count>
    void look(Sought& sought, const BlockSearch& other, TilePlace first, int places) const;
    template <typename Lanes>
    void lookAround(Sought& sought, const BlockSearch& other, int reach, TilePlace guessedMove) const;
    ORLEN_WIDE void lookAroundInWideLanes(Sought& sought, const BlockSearch& other, int reach,
                                          TilePlace guessedMove) const;
    ORLEN_WIDE void prepareInWideLanes(const Pixels& pixels, int reach);
    // Of a member of a template it has to be said here already, or they are not compiled for wide lanes.
    ORLEN_INLINE void prepare(const Pixels& pixels, int reach);
    ORLEN_INLINE void sumUpBlocks(int reach);
    ORLEN_INLINE void clearFrom(std::size_t place);
    using QuarterSquares = std::array<std::array<std::int32_t, side>, side - kQuarter + 1>;
    [[nodiscard]] ORLEN_INLINE QuarterSquares quarterSquares() const;
    void findTexture();

    // None is zeroed first, which would take a good part of the time that preparing does.

    /// Each pixel with the one on its right. Here and below, the margin is for reading whole lanes at the
    /// end.
    std::array<PixelPair, static_cast<std::size_t>(side) * side + kMargin> m_pairs;
    // What the correlation of a block needs, at all places, rows from the top.
    std::array<float, kAllPlaces + kMargin> m_sums; ///< of its pixels
    /// Roots of the sums of the squares of what follows a quarter and a half of it.
    std::array<std::array<float, kAllPlaces + kMargin>, 2> m_rests;
    std::array<float, kAllPlaces> m_spreads; ///< variances, times the squared number of pixels
    std::array<float, kAllPlaces + kMargin> m_onesBySpreads; ///< with some noise added
    std::vector<TilePlace> m_texturedBlocks;
};

using FineSearch = BlockSearch<FeaturePrint::kTileSide, 16>;
/// In a quarter of the pixels, which takes a sixteenth of the time.
using CoarseSearch = BlockSearch<FeaturePrint::kTileSide / 2, 8>;

extern template class BlockSearch<FineSearch::kSide, FineSearch::kBlock>;
extern template class BlockSearch<CoarseSearch::kSide, CoarseSearch::kBlock>;

} // namespace orlen

#include "scan/photos/QuickLook.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/CommonMotion.h"

#include <algorithm>
#include <bit>
#include <cstdlib>
#include <limits>
#include <span>
#include <tuple>

#ifdef __x86_64__
#include <immintrin.h>
#endif

// A tile is centred around a middle grey, so whether a pixel is darker says most of what the correlation of
// two blocks finds out: the fewer of their bits differ, the more they are alike. As in FineCheck, one motion
// is fitted to where the blocks are found, and it matters how much of the structure follows it.
//
// The rows of a block are the bytes of one number, and so are those below each other at any place. How many
// bits differ and how far the block would have moved make up one number, too, of which the least is sought.

namespace orlen {

namespace {

struct Move {
    std::int8_t right = 0; ///< pixels
    std::int8_t down = 0;  ///< pixels
};

/// All moves of up to that many pixels each way, and which of two that match equally well is taken: the
/// shorter one.
template <int reach>
struct Moves {
    static constexpr int kSide = 2 * reach + 1;

    constexpr Moves()
    {
        for (int i = 0; i < kSide * kSide; ++i)
            inOrder[static_cast<std::size_t>(i)] = {static_cast<std::int8_t>(i / kSide - reach),
                                                    static_cast<std::int8_t>(i % kSide - reach)};
        const auto length = [](int way) { return way < 0 ? -way : way; };
        std::ranges::sort(inOrder, {}, [&](Move move) {
            return std::tuple(length(move.right) + length(move.down), move.right, move.down);
        });
        for (std::size_t i = 0; i < inOrder.size(); ++i)
            rank[static_cast<std::size_t>(inOrder[i].right + reach)]
                [static_cast<std::size_t>(inOrder[i].down + reach)] = static_cast<std::uint8_t>(i);
    }

    std::array<Move, std::size_t{kSide} * kSide> inOrder{};
    std::array<std::array<std::uint8_t, kSide>, kSide> rank{}; ///< by the way right, then down
};

constexpr int kFarthest = 5; ///< pixels that a block may have moved
constexpr Moves<kFarthest> kBlockMoves;
constexpr unsigned kRankBits = 7;

#ifdef __x86_64__

constexpr std::size_t kAtATime = 16;

/// For each way to the right the ranks of the ways down; more than any where there is none.
constexpr auto kRanksOfWays = [] {
    std::array<std::array<std::uint16_t, kAtATime>, Moves<kFarthest>::kSide> ranks{};
    for (std::size_t right = 0; right < ranks.size(); ++right) {
        ranks[right].fill(std::numeric_limits<std::uint16_t>::max());
        std::ranges::copy(kBlockMoves.rank[right], ranks[right].begin());
    }
    return ranks;
}();

/// How many bits of any four differ from those that come first.
constexpr auto kDifferentBits = [] {
    constexpr unsigned kFours = 16;
    std::array<std::array<std::uint8_t, kFours>, kFours> different{};
    for (unsigned one = 0; one < kFours; ++one) {
        for (unsigned other = 0; other < kFours; ++other)
            different[one][other] = static_cast<std::uint8_t>(std::popcount(one ^ other));
    }
    return different;
}();

/// Looks for a block at sixteen places below each other at a time. Four pixels are looked up in one
/// instruction: the left ones of each row are in the lower half of the lanes, the right ones in the upper.
class WideBlock {
public:
    ORLEN_WIDE explicit WideBlock(std::uint64_t pixels)
    {
        for (__m256i& row : m_rows) {
            row = _mm256_inserti128_si256(_mm256_castsi128_si256(load(kDifferentBits[pixels % 16].data())),
                                          load(kDifferentBits[pixels / 16 % 16].data()), 1);
            pixels >>= 8U;
        }
    }

    /// The column is that of the uppermost place.
    ORLEN_WIDE void look(const std::uint8_t* column, const std::array<std::uint16_t, kAtATime>& ranks)
    {
        const __m256i above = halves(column);
        const __m256i below = halves(column + kAtATime);
        const __m256i sums = add<1>(_mm256_shuffle_epi8(m_rows[0], above), above, below);
        const __m128i different =
            _mm_add_epi8(_mm256_castsi256_si128(sums), _mm256_extracti128_si256(sums, 1));
        const __m256i found =
            _mm256_or_si256(_mm256_slli_epi16(_mm256_cvtepu8_epi16(different), kRankBits),
                            _mm256_loadu_si256(reinterpret_cast<const __m256i*>(ranks.data())));
        m_least = _mm256_min_epu16(m_least, found);
    }

    /// Of the places from one to another.
    [[nodiscard]] ORLEN_WIDE unsigned least(int first, int last) const
    {
        const __m256i lanes = _mm256_setr_epi16(0, 1, 2, 3, 4, 5, 6, 7, 8, 9, 10, 11, 12, 13, 14, 15);
        const __m256i isOutside =
            _mm256_or_si256(_mm256_cmpgt_epi16(_mm256_set1_epi16(static_cast<std::int16_t>(first)), lanes),
                            _mm256_cmpgt_epi16(lanes, _mm256_set1_epi16(static_cast<std::int16_t>(last))));
        const __m256i all = _mm256_or_si256(m_least, isOutside);
        const __m128i least =
            _mm_minpos_epu16(_mm_min_epu16(_mm256_castsi256_si128(all), _mm256_extracti128_si256(all, 1)));
        return static_cast<std::uint16_t>(_mm_cvtsi128_si32(least));
    }

private:
    static constexpr int kRows = PictureOutline::kBlock;

    ORLEN_WIDE static __m128i load(const std::uint8_t* bytes)
    {
        return _mm_loadu_si128(reinterpret_cast<const __m128i*>(bytes));
    }
    ORLEN_WIDE static __m256i halves(const std::uint8_t* rows)
    {
        const __m256i both = _mm256_broadcastsi128_si256(load(rows));
        return _mm256_and_si256(_mm256_srlv_epi32(both, _mm256_setr_epi32(0, 0, 0, 0, 4, 4, 4, 4)),
                                _mm256_set1_epi8(15));
    }
    /// The row, and those that follow.
    template <int row>
    ORLEN_WIDE [[nodiscard]] __m256i add(__m256i sums, __m256i above, __m256i below) const
    {
        if constexpr (row == kRows) {
            return sums;
        } else {
            const __m256i rows = _mm256_alignr_epi8(below, above, row);
            return add<row + 1>(_mm256_add_epi8(sums, _mm256_shuffle_epi8(m_rows[row], rows)), above, below);
        }
    }

    __m256i m_rows[kRows];
    __m256i m_least = _mm256_set1_epi16(-1);
};

#endif

} // namespace

QuickLook::QuickLook(const PictureOutline& outline) : m_outline(outline)
{
    if (WideLanes::areUsed())
        fillColumnsInWideLanes();
    else
        fillColumns();
}

ORLEN_INLINE void QuickLook::fillColumns()
{
    // Sixteen pixels at a time, of which eight are taken from eight places on.
    constexpr std::size_t kByte = 8;
    std::uint8_t* next = m_columns.data() + kMargin;
    for (std::size_t first = 0; first < kPlaces; first += kByte) {
        std::array<std::uint16_t, PictureOutline::kSide> wide{};
        for (std::size_t y = 0; y < wide.size(); ++y)
            wide[y] = static_cast<std::uint16_t>(m_outline.rows()[y] >> first);
        for (std::size_t left = first; left < std::min<std::size_t>(first + kByte, kPlaces); ++left) {
            for (std::size_t y = 0; y < wide.size(); ++y)
                next[y] = static_cast<std::uint8_t>(wide[y] >> (left - first));
            next += PictureOutline::kSide;
        }
    }
}

ORLEN_WIDE void QuickLook::fillColumnsInWideLanes()
{
    fillColumns();
}

/// The least comes from how many bits differ, above the rank of the move.
BlockFind QuickLook::found(PictureOutline::Block block, unsigned least)
{
    constexpr float kByChance = PictureOutline::kBlock * PictureOutline::kBlock / 2.0F; // bits that differ
    constexpr float kScale = static_cast<float>(FeaturePrint::kTileSide) / PictureOutline::kSide;
    const Move move = kBlockMoves.inOrder[least % (1U << kRankBits)];
    const auto fewest = static_cast<float>(least >> kRankBits);
    return {.block = {static_cast<int>(kScale) * block.left, static_cast<int>(kScale) * block.top},
            .moveX = kScale * static_cast<float>(move.right),
            .moveY = kScale * static_cast<float>(move.down),
            .texture = static_cast<float>(block.texture),
            .correlation = std::max(0.0F, 1 - fewest / kByChance)};
}

/// Where fewest bits differ; of some such places, the one nearest to the block's own.
QuickLook::Finds QuickLook::findsIn(const QuickLook& other) const
{
    Finds finds;
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks()) {
        const std::uint64_t own = pixels(block.left, block.top);
        const int bottom = std::min(block.top + kFarthest, kPlaces - 1);
        unsigned least = std::numeric_limits<unsigned>::max();
        for (int x = std::max(block.left - kFarthest, 0); x <= std::min(block.left + kFarthest, kPlaces - 1);
             ++x) {
            const int right = x - block.left + kFarthest;
            const auto& ranks = kBlockMoves.rank[static_cast<std::size_t>(right)];
            for (int y = std::max(block.top - kFarthest, 0); y <= bottom; ++y) {
                const auto different = static_cast<unsigned>(std::popcount(own ^ other.pixels(x, y)));
                const int down = y - block.top + kFarthest;
                const unsigned rank = ranks[static_cast<std::size_t>(down)];
                least = std::min(least, different << kRankBits | rank);
            }
        }
        finds[count++] = found(block, least);
    }
    return finds;
}

ORLEN_WIDE QuickLook::Finds QuickLook::findsInWideLanes(const QuickLook& other) const
{
    Finds finds;
#ifdef __x86_64__
    std::size_t count = 0;
    for (const PictureOutline::Block block : m_outline.blocks()) {
        WideBlock sought(pixels(block.left, block.top));
        const int top = block.top - kFarthest;
        for (int x = std::max(block.left - kFarthest, 0); x <= std::min(block.left + kFarthest, kPlaces - 1);
             ++x) {
            const int right = x - block.left + kFarthest;
            sought.look(other.column(x, top), kRanksOfWays[static_cast<std::size_t>(right)]);
        }
        finds[count++] = found(block, sought.least(-top, kPlaces - 1 - top));
    }
#else
    finds = findsIn(other);
#endif
    return finds;
}

QuickLook::Finds QuickLook::allFindsIn(const QuickLook& other) const
{
    return WideLanes::areUsed() ? findsInWideLanes(other) : findsIn(other);
}

/// The share of either one's structure that is found in the other one under a common motion.
float QuickLook::sharedBy(const QuickLook& one, const QuickLook& other)
{
    const Finds finds = one.allFindsIn(other);
    const Finds otherFinds = other.allFindsIn(one);
    const auto found = std::span(finds).first(one.m_outline.blocks().size());
    const auto otherFound = std::span(otherFinds).first(other.m_outline.blocks().size());
    const auto [motion, otherMotion] = CommonMotion::fitted(found, otherFound);
    return (motion.followingShare(found) + otherMotion.followingShare(otherFound)) / 2;
}

float QuickLook::hope(const QuickLook& one, const QuickLook& other)
{
    constexpr std::size_t kLeastBlocks = 4; // to tell a common motion from chance
    constexpr float kHopeless = 0.17F;      // 1 of 2,000 changed copies has less, 6 of 10 others do
    if (std::max(one.m_outline.blocks().size(), other.m_outline.blocks().size()) < kLeastBlocks)
        return 1;
    const float share = sharedBy(one, other);
    return share < kHopeless ? 0 : share;
}

} // namespace orlen

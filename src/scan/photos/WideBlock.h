#pragma once

#include "platform/images/PictureOutline.h"
#include "platform/values/WideLanes.h"
#include "scan/photos/BlockMoves.h"

#include <algorithm>
#include <array>
#include <bit>
#include <cstddef>
#include <cstdint>

#ifdef __x86_64__

#include <immintrin.h>

namespace orlen::BlockMoves {

inline constexpr std::size_t kAtATime = 16;

/// For each way down the ranks of the ways to the right, and something where there is none.
inline constexpr auto kRanksOfWays = [] {
    std::array<std::array<std::uint8_t, kAtATime>, kSide> ranks{};
    for (std::size_t down = 0; down < ranks.size(); ++down) {
        for (std::size_t right = 0; right < ranks.size(); ++right)
            ranks[down][right] = kAll.rank[right][down];
    }
    return ranks;
}();

/// How many bits of any four differ from those that come first.
inline constexpr auto kDifferentBits = [] {
    constexpr unsigned kFours = 16;
    std::array<std::array<std::uint8_t, kFours>, kFours> different{};
    for (unsigned one = 0; one < kFours; ++one) {
        for (unsigned other = 0; other < kFours; ++other)
            different[one][other] = static_cast<std::uint8_t>(std::popcount(one ^ other));
    }
    return different;
}();

/// Looks for a block at sixteen places beside each other, of which the first eleven count, in one row after
/// the other. The left halves of its rows are in the lower half of the lanes, the right ones in the upper.
class WideBlock {
public:
    static constexpr int kRows = PictureOutline::kBlock;
    static constexpr int kRowsNeeded = kRows + 2 * kFarthest;

    ORLEN_WIDE WideBlock(const PictureOutline::Rows& rows, PictureOutline::Block block)
    {
        for (std::size_t i = 0; i < kRows; ++i) {
            const std::uint64_t pixels = rows[block.top + i] >> block.left;
            m_rows[i] = halves(kDifferentBits[pixels % 16].data(), kDifferentBits[pixels / 16 % 16].data());
        }
    }

    /// Those that moved from `first` to `last` down, at least two ways. `fours` are those of the leftmost
    /// place in the topmost row that is needed, which is `above` rows above the block.
    ORLEN_WIDE void look(const std::uint8_t* fours, int above, int first, int last)
    {
        __m256i rows[kRowsNeeded]; // each for up to eight rows of places
#pragma GCC unroll 18
        for (int i = 0; i < kRowsNeeded; ++i, fours += PictureOutline::kSide)
            rows[i] = halves(fours, fours + 4);
        // At an edge some are looked at again, which changes nothing.
        for (int down = -kFarthest; down <= kFarthest; down += 2) {
            const int one = std::clamp(down, first, last - 1);
            const int way = one + kFarthest;
            lookAtTwo(rows + above + one, kRanksOfWays[static_cast<std::size_t>(way)].data());
        }
    }

    /// Of the places from one to another.
    [[nodiscard]] ORLEN_WIDE unsigned least(int first, int last) const
    {
        constexpr std::int16_t kHalf = kAtATime / 2;
        const __m128i lanes = _mm_setr_epi16(0, 1, 2, 3, 4, 5, 6, 7);
        const __m128i left = within(folded(m_left), lanes, first, last);
        const __m128i right =
            within(folded(m_right), _mm_add_epi16(lanes, _mm_set1_epi16(kHalf)), first, last);
        return static_cast<std::uint16_t>(_mm_cvtsi128_si32(_mm_minpos_epu16(_mm_min_epu16(left, right))));
    }

private:
    ORLEN_WIDE static __m256i halves(const std::uint8_t* lower, const std::uint8_t* upper)
    {
        const __m128i low = _mm_loadu_si128(reinterpret_cast<const __m128i*>(lower));
        const __m128i high = _mm_loadu_si128(reinterpret_cast<const __m128i*>(upper));
        return _mm256_inserti128_si256(_mm256_castsi128_si256(low), high, 1);
    }
    /// How many bits differ in a row of places, for either half.
    ORLEN_WIDE [[nodiscard]] __m256i different(const __m256i* rows) const
    {
        __m256i sums = _mm256_shuffle_epi8(m_rows[0], rows[0]);
        for (std::size_t i = 1; i < kRows; ++i)
            sums = _mm256_add_epi8(sums, _mm256_shuffle_epi8(m_rows[i], rows[i]));
        return sums;
    }
    /// At two rows of places.
    ORLEN_WIDE void lookAtTwo(const __m256i* rows, const std::uint8_t* rankOfBoth)
    {
        const __m256i one = different(rows);
        const __m256i other = different(rows + 1);
        const __m256i sums = _mm256_add_epi8(_mm256_permute2x128_si256(one, other, 0x20),
                                             _mm256_permute2x128_si256(one, other, 0x31));
        const __m256i ranks = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(rankOfBoth));
        m_left = _mm256_min_epu16(m_left, _mm256_unpacklo_epi8(ranks, sums));
        m_right = _mm256_min_epu16(m_right, _mm256_unpackhi_epi8(ranks, sums));
    }
    ORLEN_WIDE static __m128i folded(__m256i found)
    {
        return _mm_min_epu16(_mm256_castsi256_si128(found), _mm256_extracti128_si256(found, 1));
    }
    ORLEN_WIDE static __m128i within(__m128i found, __m128i lanes, int first, int last)
    {
        const __m128i isOutside =
            _mm_or_si128(_mm_cmpgt_epi16(_mm_set1_epi16(static_cast<std::int16_t>(first)), lanes),
                         _mm_cmpgt_epi16(lanes, _mm_set1_epi16(static_cast<std::int16_t>(last))));
        return _mm_or_si128(found, isOutside);
    }

    __m256i m_rows[kRows];
    // The least at the left places and at the right ones, each of both rows that are looked at.
    __m256i m_left = _mm256_set1_epi16(-1);
    __m256i m_right = _mm256_set1_epi16(-1);
};

} // namespace orlen::BlockMoves

#endif

#pragma once

#include "platform/values/WideLanes.h"
#include "scan/photos/BlockMoves.h"

#include <array>
#include <cstddef>
#include <cstdint>

#ifdef __x86_64__

#include <immintrin.h>

namespace orlen::BlockMoves {

// A lane holds all rows of a block, at eight places below each other. There are eleven, so the last three are
// counted apart, and the least is sought in two of the four words of each lane.

inline constexpr std::size_t kWords = 32;
inline constexpr std::size_t kWordsOfPlace = 4;

/// For each word which of the places it is of.
inline constexpr auto kPlaceOfWord = [] {
    std::array<std::uint16_t, kWords> places{};
    for (std::size_t word = 0; word < kWords; ++word) {
        const std::size_t lane = word / kWordsOfPlace;
        const std::size_t half = word % kWordsOfPlace;
        places[word] = static_cast<std::uint16_t>(half < 2 ? lane + 8 * half : kWords);
    }
    return places;
}();

/// The ranks of the ways down, for each way to the right.
inline constexpr auto kRanksOfWords = [] {
    std::array<std::array<std::uint16_t, kWords>, kSide> ranks{};
    for (std::size_t right = 0; right < ranks.size(); ++right) {
        for (std::size_t word = 0; word < kWords; ++word) {
            if (const std::size_t down = kPlaceOfWord[word]; down < ranks.size())
                ranks[right][word] = kAll.rank[right][down];
        }
    }
    return ranks;
}();

/// The bytes of eight numbers, each from one further on.
inline constexpr auto kBytesOfPlaces = [] {
    std::array<std::uint8_t, 64> bytes{};
    for (std::size_t i = 0; i < bytes.size(); ++i)
        bytes[i] = static_cast<std::uint8_t>(i / 8 + i % 8);
    return bytes;
}();

/// Looks for a block in one column of places after the other.
class WidestBlock {
public:
    ORLEN_WIDEST explicit WidestBlock(std::uint64_t own)
        : m_own(_mm512_set1_epi64(static_cast<std::int64_t>(own)))
    {
    }

    /// At eleven places below each other, in the column of that way to the right. Of the first one there are
    /// the pixels, a byte for each row, and more.
    ORLEN_WIDEST void look(const std::uint8_t* column, std::size_t right)
    {
        const __m512i pixels = _mm512_loadu_si512(column);
        const __m512i bytes = _mm512_loadu_si512(kBytesOfPlaces.data());
        const __m512i bytesOfLast = _mm512_add_epi8(bytes, _mm512_set1_epi8(8));
        const __m512i first = _mm512_slli_epi64(different(_mm512_permutexvar_epi8(bytes, pixels)), kRankBits);
        const __m512i second =
            _mm512_slli_epi64(different(_mm512_permutexvar_epi8(bytesOfLast, pixels)), 16 + kRankBits);
        const __m512i ranks = _mm512_loadu_si512(kRanksOfWords[right].data());
        m_least = _mm512_min_epu16(m_least, _mm512_or_si512(_mm512_or_si512(first, second), ranks));
    }

    /// Of the places from one to another.
    [[nodiscard]] ORLEN_WIDEST unsigned least(int first, int last) const
    {
        const __m512i places = _mm512_sub_epi16(_mm512_loadu_si512(kPlaceOfWord.data()),
                                                _mm512_set1_epi16(static_cast<std::int16_t>(first)));
        const __mmask32 isOutside =
            _mm512_cmpgt_epu16_mask(places, _mm512_set1_epi16(static_cast<std::int16_t>(last - first)));
        const __m512i within = _mm512_mask_blend_epi16(isOutside, m_least, _mm512_set1_epi16(-1));
        const __m256i half =
            _mm256_min_epu16(_mm512_castsi512_si256(within), _mm512_extracti64x4_epi64(within, 1));
        const __m128i quarter =
            _mm_min_epu16(_mm256_castsi256_si128(half), _mm256_extracti128_si256(half, 1));
        return static_cast<std::uint16_t>(_mm_cvtsi128_si32(_mm_minpos_epu16(quarter)));
    }

private:
    ORLEN_WIDEST [[nodiscard]] __m512i different(__m512i rows) const
    {
        return _mm512_popcnt_epi64(_mm512_xor_si512(rows, m_own));
    }

    __m512i m_own;
    __m512i m_least = _mm512_set1_epi16(-1);
};

} // namespace orlen::BlockMoves

#endif

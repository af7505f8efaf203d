#pragma once

#include "platform/values/WideLanes.h"

#include <array>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace orlen {

// Sums of products of a sketch with many others, each of two numbers at a time. They wrap, and come out right
// in the end.

/// Sketches that are multiplied at a time.
inline constexpr std::size_t kSketches = 32;

/// Two numbers of each, from 0 to 255, the first in the lower byte.
using SketchPairs = std::array<std::uint16_t, kSketches>;

/// Two numbers from -128 to 127, likewise, and once more above them.
using SoughtPair = std::uint32_t;

/// On any processor.
class NarrowSketchSums {
public:
    ORLEN_INLINE void addToAll(int number)
    {
        m_left += static_cast<std::uint16_t>(number);
        m_right += static_cast<std::uint16_t>(number);
    }
    ORLEN_INLINE void add(const SketchPairs& of, SoughtPair pair)
    {
        Lanes left{};
        Lanes right{};
        std::memcpy(&left, of.data(), sizeof left);
        std::memcpy(&right, of.data() + kLanes, sizeof right);
        add(m_left, left, static_cast<std::uint16_t>(pair));
        add(m_right, right, static_cast<std::uint16_t>(pair));
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_INLINE std::uint32_t atLeast(std::int16_t least) const
    {
        std::array<std::int16_t, kSketches> sums{};
        std::memcpy(sums.data(), &m_left, sizeof m_left);
        std::memcpy(sums.data() + kLanes, &m_right, sizeof m_right);
        std::uint32_t found = 0;
        for (std::size_t i = 0; i < kSketches; ++i)
            found |= std::uint32_t{sums[i] >= least} << i;
        return found;
    }

private:
    static constexpr std::size_t kLanes = 16;
    using Lanes [[gnu::vector_size(kLanes * sizeof(std::uint16_t))]] = std::uint16_t;

    ORLEN_INLINE static void add(Lanes& sums, const Lanes& of, std::uint16_t pair)
    {
        constexpr int kByte = 8;
        sums += (of & 0xff) * static_cast<std::uint16_t>(static_cast<std::int8_t>(pair & 0xff)) +
                (of >> kByte) * static_cast<std::uint16_t>(static_cast<std::int8_t>(pair >> kByte));
    }

    Lanes m_left{};
    Lanes m_right{};
};

#ifdef __x86_64__
/// In one instruction for two products of each.
class WideSketchSums {
public:
    ORLEN_WIDE WideSketchSums() {} // NOLINT(modernize-use-equals-default): compiled for wide lanes
    ORLEN_WIDE void addToAll(int number)
    {
        const __m256i all = _mm256_set1_epi16(static_cast<std::int16_t>(number));
        m_left = _mm256_add_epi16(m_left, all);
        m_right = _mm256_add_epi16(m_right, all);
    }
    ORLEN_WIDE void add(const SketchPairs& of, SoughtPair pair)
    {
        const auto* sketches = reinterpret_cast<const __m256i*>(of.data());
        const __m256i all = _mm256_set1_epi32(static_cast<std::int32_t>(pair));
        m_left = _mm256_add_epi16(m_left, _mm256_maddubs_epi16(_mm256_loadu_si256(sketches), all));
        m_right = _mm256_add_epi16(m_right, _mm256_maddubs_epi16(_mm256_loadu_si256(sketches + 1), all));
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_WIDE std::uint32_t atLeast(std::int16_t least) const
    {
        constexpr int kInOrder = 0b11'01'10'00;
        const __m256i less = _mm256_set1_epi16(static_cast<std::int16_t>(least - 1));
        const __m256i isFound =
            _mm256_packs_epi16(_mm256_cmpgt_epi16(m_left, less), _mm256_cmpgt_epi16(m_right, less));
        return static_cast<std::uint32_t>(_mm256_movemask_epi8(_mm256_permute4x64_epi64(isFound, kInOrder)));
    }

private:
    __m256i m_left = _mm256_setzero_si256();
    __m256i m_right = _mm256_setzero_si256();
};
#endif

} // namespace orlen

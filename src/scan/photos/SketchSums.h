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

// Sums of products of a sketch with many others, each of four numbers at a time. Those of 16 bits wrap, and
// come out right in the end. How many sums of each kind are best made at a time depends on the registers.

/// Sketches that are multiplied at a time.
inline constexpr std::size_t kSketches = 32;

/// Four numbers of each, from 0 to 255: two and then two, the first in the lower byte.
struct SketchQuads {
    static constexpr std::size_t kLine = 64; // bytes

    alignas(kLine) std::array<std::uint16_t, 2 * kSketches> pairs{};
};

/// Four numbers from -128 to 127, the first in the lowest byte.
using SoughtQuad = std::uint32_t;

/// On any processor.
class NarrowSketchSums {
public:
    static constexpr std::size_t kTogether = 1;

    ORLEN_INLINE void addToAll(int number)
    {
        for (std::size_t i = 0; i < m_sums.size(); i += 2)
            m_sums[i] = static_cast<std::uint16_t>(m_sums[i] + number);
    }
    ORLEN_INLINE void add(const SketchQuads& of, SoughtQuad quad)
    {
        constexpr unsigned kByte = 8;
        std::array<std::uint16_t, 4> numbers{};
        for (unsigned i = 0; i < numbers.size(); ++i) {
            constexpr unsigned kSign = 0x80;
            const unsigned byte = (quad >> i * kByte) & 0xFF;
            numbers[i] = static_cast<std::uint16_t>((byte ^ kSign) - kSign);
        }
        const Lanes lower = inTurns(numbers[0], numbers[2]);
        const Lanes upper = inTurns(numbers[1], numbers[3]);
        for (std::size_t i = 0; i < m_sums.size(); i += kLanes) {
            Lanes pairs{};
            Lanes sums{};
            std::memcpy(&pairs, &of.pairs[i], sizeof pairs);
            std::memcpy(&sums, &m_sums[i], sizeof sums);
            sums += (pairs & 0xff) * lower + (pairs >> kByte) * upper;
            std::memcpy(&m_sums[i], &sums, sizeof sums);
        }
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_INLINE std::uint32_t atLeast(std::int16_t least) const
    {
        std::uint32_t found = 0;
        for (std::size_t i = 0; i < kSketches; ++i) {
            const auto sum = static_cast<std::int16_t>(m_sums[2 * i] + m_sums[2 * i + 1]);
            found |= std::uint32_t{sum >= least} << i;
        }
        return found;
    }

private:
    static constexpr std::size_t kLanes = 8;
    using Lanes [[gnu::vector_size(kLanes * sizeof(std::uint16_t))]] = std::uint16_t;

    ORLEN_INLINE static Lanes inTurns(std::uint16_t one, std::uint16_t other)
    {
        return Lanes{one, other, one, other, one, other, one, other};
    }

    std::array<std::uint16_t, 2 * kSketches> m_sums{};
};

#ifdef __x86_64__
/// In one instruction for two products of each.
class WideSketchSums {
public:
    static constexpr std::size_t kTogether = 2;

    ORLEN_WIDE WideSketchSums() {} // NOLINT(modernize-use-equals-default): compiled for wide lanes
    ORLEN_WIDE void addToAll(int number)
    {
        const __m256i all = _mm256_set1_epi32(static_cast<std::uint16_t>(number));
        for (__m256i& sums : m_sums)
            sums = _mm256_add_epi16(sums, all);
    }
    ORLEN_WIDE void add(const SketchQuads& of, SoughtQuad quad)
    {
        const auto* sketches = reinterpret_cast<const __m256i*>(of.pairs.data());
        const __m256i all = _mm256_set1_epi32(static_cast<std::int32_t>(quad));
        for (__m256i& sums : m_sums)
            sums = _mm256_add_epi16(sums, _mm256_maddubs_epi16(_mm256_load_si256(sketches++), all));
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_WIDE std::uint32_t atLeast(std::int16_t least) const
    {
        const __m256i less = _mm256_set1_epi16(static_cast<std::int16_t>(least - 1));
        const __m256i left = _mm256_cmpgt_epi16(_mm256_hadd_epi16(m_sums[0], m_sums[1]), less);
        const __m256i right = _mm256_cmpgt_epi16(_mm256_hadd_epi16(m_sums[2], m_sums[3]), less);
        const __m256i inOrder = _mm256_setr_epi32(0, 4, 1, 5, 2, 6, 3, 7);
        const __m256i isFound = _mm256_permutevar8x32_epi32(_mm256_packs_epi16(left, right), inOrder);
        return static_cast<std::uint32_t>(_mm256_movemask_epi8(isFound));
    }

private:
    __m256i m_sums[4] = {_mm256_setzero_si256(), _mm256_setzero_si256(), _mm256_setzero_si256(),
                         _mm256_setzero_si256()};
};

/// In one instruction for all four products of each, and their sum.
class WidestSketchSums {
public:
    static constexpr std::size_t kTogether = 8;

    ORLEN_WIDEST WidestSketchSums() {} // NOLINT(modernize-use-equals-default): compiled for the widest lanes
    ORLEN_WIDEST void addToAll(int number)
    {
        const __m512i all = _mm512_set1_epi32(number);
        m_left = _mm512_add_epi32(m_left, all);
        m_right = _mm512_add_epi32(m_right, all);
    }
    ORLEN_WIDEST void add(const SketchQuads& of, SoughtQuad quad)
    {
        const __m512i all = _mm512_set1_epi32(static_cast<std::int32_t>(quad));
        m_left = _mm512_dpbusd_epi32(m_left, _mm512_load_si512(of.pairs.data()), all);
        m_right = _mm512_dpbusd_epi32(m_right, _mm512_load_si512(of.pairs.data() + kSketches), all);
    }
    /// A bit for each.
    [[nodiscard]] ORLEN_WIDEST std::uint32_t atLeast(std::int16_t least) const
    {
        const __m512i all = _mm512_set1_epi32(least);
        return std::uint32_t{_mm512_cmpge_epi32_mask(m_left, all)} |
               std::uint32_t{_mm512_cmpge_epi32_mask(m_right, all)} << kSketches / 2;
    }

private:
    __m512i m_left = _mm512_setzero_si512();
    __m512i m_right = _mm512_setzero_si512();
};
#endif

} // namespace orlen

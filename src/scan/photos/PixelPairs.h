#pragma once

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __SSE2__
#include <emmintrin.h>
#endif

// Left to itself, the compiler multiplies one block with another and adds up the lanes, over and over. So the
// lanes are blocks: one for each of some places beside each other.

namespace orlen {

/// Two pixels beside each other, around 0.
struct PixelPair {
    std::int16_t left = 0;
    std::int16_t right = 0;
};

inline constexpr int kLanes = 4;
using IntLanes [[gnu::vector_size(kLanes * sizeof(std::int32_t))]] = std::int32_t;
using FloatLanes [[gnu::vector_size(kLanes * sizeof(float))]] = float;

/// The products of one pair with each of four beside each other, added up.
inline IntLanes products(PixelPair one, const PixelPair* four)
{
#ifdef __SSE2__
    const __m128i ones = _mm_set1_epi32(std::bit_cast<std::int32_t>(one));
    const __m128i others = _mm_loadu_si128(reinterpret_cast<const __m128i*>(four));
    return std::bit_cast<IntLanes>(_mm_madd_epi16(ones, others));
#else
    IntLanes sums{};
    for (int i = 0; i < kLanes; ++i)
        sums[i] = std::int32_t{one.left} * four[i].left + std::int32_t{one.right} * four[i].right;
    return sums;
#endif
}

inline FloatLanes lanesAt(const float* numbers)
{
    FloatLanes lanes{};
    std::memcpy(&lanes, numbers, sizeof lanes);
    return lanes;
}

} // namespace orlen

#pragma once

#include "platform/values/WideLanes.h"

#include <bit>
#include <cstddef>
#include <cstdint>
#include <cstring>

#ifdef __x86_64__
#include <immintrin.h>
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

/// Four places at a time, on any processor.
struct FourLanes {
    static constexpr int kCount = kLanes;
    using Ints = IntLanes;
    using Floats = FloatLanes;

    /// Adds the products of one pair with each of some beside each other.
    ORLEN_INLINE static void addProducts(Ints& sums, PixelPair one, const PixelPair* others)
    {
#ifdef __x86_64__
        const __m128i ones = _mm_set1_epi32(std::bit_cast<std::int32_t>(one));
        const __m128i some = _mm_loadu_si128(reinterpret_cast<const __m128i*>(others));
        sums += std::bit_cast<Ints>(_mm_madd_epi16(ones, some));
#else
        for (int i = 0; i < kCount; ++i)
            sums[i] += std::int32_t{one.left} * others[i].left + std::int32_t{one.right} * others[i].right;
#endif
    }
};

#ifdef __x86_64__
/// Eight places at a time.
struct EightLanes {
    static constexpr int kCount = 2 * kLanes;
    using Ints [[gnu::vector_size(kCount * sizeof(std::int32_t))]] = std::int32_t;
    using Floats [[gnu::vector_size(kCount * sizeof(float))]] = float;

    ORLEN_WIDE static void addProducts(Ints& sums, PixelPair one, const PixelPair* others)
    {
        const __m256i ones = _mm256_set1_epi32(std::bit_cast<std::int32_t>(one));
        const __m256i some = _mm256_loadu_si256(reinterpret_cast<const __m256i*>(others));
        Ints products{};
        const __m256i both = _mm256_madd_epi16(ones, some);
        std::memcpy(&products, &both, sizeof products);
        sums += products;
    }
};
#endif

template <typename Lanes>
ORLEN_INLINE void load(Lanes& lanes, const float* numbers)
{
    std::memcpy(&lanes, numbers, sizeof lanes);
}

} // namespace orlen

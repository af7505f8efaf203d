#include "scan/photos/BentRow.h"

#include "platform/values/WideLanes.h"

#include <algorithm>
#include <cstddef>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace orlen::BentRow {

namespace {

constexpr int kSide = FeaturePrint::kTileSide;
constexpr float kRounding = 0.5F; // levels are never negative, and a cast is much faster than lround

/// The four pixels around a point, each as much as the point is near.
float between(const FeaturePrint::Tile& tile, float x, float y)
{
    constexpr int kLast = kSide - 2;
    x = std::clamp(x, 0.0F, kLast + 1.0F);
    y = std::clamp(y, 0.0F, kLast + 1.0F);
    const int left = std::min(static_cast<int>(x), kLast);
    const int top = std::min(static_cast<int>(y), kLast);
    const float right = x - static_cast<float>(left);
    const float down = y - static_cast<float>(top);
    const std::uint8_t* at = tile.data() + (static_cast<std::ptrdiff_t>(top) * kSide + left);
    const float above = (1 - right) * static_cast<float>(at[0]) + right * static_cast<float>(at[1]);
    at += kSide;
    const float below = (1 - right) * static_cast<float>(at[0]) + right * static_cast<float>(at[1]);
    return (1 - down) * above + down * below;
}

#ifdef __x86_64__

/// Of two pixels beside each other, in the lower bytes, each as much as the point is near.
ORLEN_WIDE inline __m256 between(__m256i pixels, __m256 right)
{
    const __m256i byte = _mm256_set1_epi32(0xff);
    const __m256 one = _mm256_cvtepi32_ps(_mm256_and_si256(pixels, byte));
    const __m256 other = _mm256_cvtepi32_ps(_mm256_and_si256(_mm256_srli_epi32(pixels, 8), byte));
    return _mm256_add_ps(_mm256_mul_ps(_mm256_sub_ps(_mm256_set1_ps(1), right), one),
                         _mm256_mul_ps(right, other));
}

ORLEN_WIDE inline __m256 clamped(__m256 numbers)
{
    constexpr float kLast = kSide - 1;
    return _mm256_min_ps(_mm256_max_ps(numbers, _mm256_setzero_ps()), _mm256_set1_ps(kLast));
}

/// As `between` for a row of pixels, and rounded. Each load takes two bytes more than needed, at the ends of
/// which are those of pixels before.
ORLEN_WIDE void fillInWideLanes(const FeaturePrint::Tile& tile, Point first, Point step, std::uint8_t* row)
{
    constexpr int kAtATime = 8;
    const __m256i last = _mm256_set1_epi32(kSide - 2);
    for (int from = 0; from < kSide; from += kAtATime) {
        const __m256 steps = _mm256_cvtepi32_ps(
            _mm256_add_epi32(_mm256_set1_epi32(from), _mm256_setr_epi32(0, 1, 2, 3, 4, 5, 6, 7)));
        const __m256 x =
            clamped(_mm256_add_ps(_mm256_set1_ps(first.x), _mm256_mul_ps(steps, _mm256_set1_ps(step.x))));
        const __m256 y =
            clamped(_mm256_add_ps(_mm256_set1_ps(first.y), _mm256_mul_ps(steps, _mm256_set1_ps(step.y))));
        const __m256i left = _mm256_min_epi32(_mm256_cvttps_epi32(x), last);
        const __m256i top = _mm256_min_epi32(_mm256_cvttps_epi32(y), last);
        const __m256 right = _mm256_sub_ps(x, _mm256_cvtepi32_ps(left));
        const __m256 down = _mm256_sub_ps(y, _mm256_cvtepi32_ps(top));
        const __m256i at = _mm256_add_epi32(_mm256_slli_epi32(top, 7), left);
        const int* const pixels = reinterpret_cast<const int*>(tile.data());
        const __m256 above = between(_mm256_i32gather_epi32(pixels, at, 1), right);
        // Those of the lower row end with the tile: read from two bytes before.
        const int* const below = reinterpret_cast<const int*>(tile.data() + kSide - 2);
        const __m256 lower = between(_mm256_srli_epi32(_mm256_i32gather_epi32(below, at, 1), 16), right);
        const __m256 level =
            _mm256_add_ps(_mm256_add_ps(_mm256_mul_ps(_mm256_sub_ps(_mm256_set1_ps(1), down), above),
                                        _mm256_mul_ps(down, lower)),
                          _mm256_set1_ps(kRounding));
        const __m256i levels = _mm256_cvttps_epi32(level);
        const __m128i words =
            _mm_packus_epi32(_mm256_castsi256_si128(levels), _mm256_extracti128_si256(levels, 1));
        _mm_storel_epi64(reinterpret_cast<__m128i*>(row + from), _mm_packus_epi16(words, words));
    }
}

#endif

} // namespace

void fill(const FeaturePrint::Tile& tile, Point first, Point step, std::span<std::uint8_t, kSide> row)
{
#ifdef __x86_64__
    if (WideLanes::areUsed()) {
        fillInWideLanes(tile, first, step, row.data());
        return;
    }
#endif
    for (std::size_t x = 0; x < row.size(); ++x) {
        const auto steps = static_cast<float>(x);
        row[x] = static_cast<std::uint8_t>(between(tile, first.x + steps * step.x, first.y + steps * step.y) +
                                           kRounding);
    }
}

} // namespace orlen::BentRow

#include "platform/images/BlockWaves.h"

#include "platform/values/WideLanes.h"

#include <cmath>
#include <cstring>
#include <numbers>

#ifdef __x86_64__
#include <immintrin.h>
#endif

namespace orlen::BlockWaves {

namespace {

// Left to itself, the compiler shuffles numbers more than it multiplies them.
using Row [[gnu::vector_size(kSide * sizeof(float))]] = float;
using Rows = std::array<Row, kSide>;

ORLEN_INLINE Rows rowsOf(const Block& block)
{
    Rows rows{};
    std::memcpy(rows.data(), block.data(), sizeof rows);
    return rows;
}

ORLEN_INLINE Block blockOf(const Rows& rows)
{
    Block block{};
    std::memcpy(block.data(), rows.data(), sizeof block);
    return block;
}

/// How high each wave is at each pixel.
const Block& waves()
{
    static const Block all = [] {
        Block made{};
        for (std::size_t wave = 0; wave < kSide; ++wave) {
            for (std::size_t x = 0; x < kSide; ++x) {
                const double angle =
                    std::numbers::pi * static_cast<double>(wave) * (static_cast<double>(x) + 0.5) / kSide;
                made[wave * kSide + x] =
                    static_cast<float>(std::cos(angle) * (wave == 0 ? std::sqrt(0.125) : 0.5));
            }
        }
        return made;
    }();
    return all;
}

ORLEN_INLINE Block swapped(const Block& block)
{
    Block result{};
    for (std::size_t y = 0; y < kSide; ++y) {
        for (std::size_t x = 0; x < kSide; ++x)
            result[x * kSide + y] = block[y * kSide + x];
    }
    return result;
}

#ifdef __x86_64__
/// Numbers, pairs of them, and fours change places.
ORLEN_WIDE void swapInWideLanes(Rows& rows)
{
    constexpr int kFirstHalves = 0b01'00'01'00;
    constexpr int kSecondHalves = 0b11'10'11'10;
    __m256 ones[kSide];
    for (std::size_t i = 0; i < kSide; i += 2) {
        const __m256 one = _mm256_loadu_ps(reinterpret_cast<const float*>(&rows[i]));
        const __m256 other = _mm256_loadu_ps(reinterpret_cast<const float*>(&rows[i + 1]));
        ones[i] = _mm256_unpacklo_ps(one, other);
        ones[i + 1] = _mm256_unpackhi_ps(one, other);
    }
    __m256 pairs[kSide];
    for (std::size_t i = 0; i < kSide; i += 4) {
        for (std::size_t half = 0; half < 2; ++half) {
            const __m256 one = ones[i + half];
            const __m256 other = ones[i + half + 2];
            pairs[i + 2 * half] = _mm256_shuffle_ps(one, other, kFirstHalves);
            pairs[i + 2 * half + 1] = _mm256_shuffle_ps(one, other, kSecondHalves);
        }
    }
    for (std::size_t i = 0; i < kSide / 2; ++i) {
        const __m256 upper = _mm256_permute2f128_ps(pairs[i], pairs[i + 4], 0x20);
        const __m256 lower = _mm256_permute2f128_ps(pairs[i], pairs[i + 4], 0x31);
        _mm256_storeu_ps(reinterpret_cast<float*>(&rows[i]), upper);
        _mm256_storeu_ps(reinterpret_cast<float*>(&rows[i + 4]), lower);
    }
}
#endif

/// In each column.
Block wavesIn(const Block& pixels)
{
    const Rows rows = rowsOf(pixels);
    Rows sums{};
    for (std::size_t wave = 0; wave < kSide; ++wave) {
        for (std::size_t y = 0; y < kSide; ++y)
            sums[wave] += waves()[wave * kSide + y] * rows[y];
    }
    return blockOf(sums);
}

/// Adds up the waves of each column. Every other wave is the same from both ends, and the others are the
/// same but for the sign; the finest ones are often missing.
ORLEN_INLINE void addUp(Rows& rows)
{
    constexpr std::size_t kHalf = kSide / 2;
    std::size_t count = kSide;
    while (count > 0 && !WideLanes::isAnySet(rows[count - 1] != Row{}))
        --count;
    std::array<Row, kHalf> even{};
    std::array<Row, kHalf> odd{};
    const float* heights = waves().data();
    for (std::size_t wave = 0; wave < count; ++wave, heights += kSide) {
        std::array<Row, kHalf>& half = wave % 2 == 0 ? even : odd;
        for (std::size_t y = 0; y < kHalf; ++y)
            half[y] += heights[y] * rows[wave];
    }
    for (std::size_t y = 0; y < kHalf; ++y) {
        rows[y] = even[y] + odd[y];
        rows[kSide - 1 - y] = even[y] - odd[y];
    }
}

ORLEN_INLINE Block addedUpBothWays(const Block& frequencies)
{
    Rows rows = rowsOf(frequencies);
    addUp(rows);
    rows = rowsOf(swapped(blockOf(rows)));
    addUp(rows);
    return blockOf(rows);
}

ORLEN_WIDE Block addedUpInWideLanes(const Block& frequencies)
{
#ifdef __x86_64__
    Rows rows = rowsOf(frequencies);
    addUp(rows);
    swapInWideLanes(rows);
    addUp(rows);
    return blockOf(rows);
#else
    return addedUpBothWays(frequencies);
#endif
}

} // namespace

Block frequenciesOf(const Block& pixels)
{
    return swapped(wavesIn(swapped(wavesIn(pixels))));
}

Block pixelsOf(const Block& frequencies)
{
    return WideLanes::areUsed() ? addedUpInWideLanes(frequencies) : addedUpBothWays(frequencies);
}

} // namespace orlen::BlockWaves

#include "platform/images/BlockWaves.h"

#include "platform/values/WideLanes.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <numbers>
#include <span>

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

ORLEN_INLINE bool isEmpty(std::span<const float> numbers)
{
    return std::ranges::all_of(numbers, [](float number) { return number == 0; });
}

/// Adds up the waves of each column. Every other wave is the same from both ends, and the others are the
/// same but for the sign; the finest ones are often missing.
ORLEN_INLINE Block addedUp(const Block& frequencies)
{
    constexpr std::size_t kHalf = kSide / 2;
    const Rows rows = rowsOf(frequencies);
    std::size_t count = kSide;
    while (count > 0 && isEmpty(std::span(frequencies).subspan((count - 1) * kSide, kSide)))
        --count;
    std::array<Row, kHalf> even{};
    std::array<Row, kHalf> odd{};
    for (std::size_t wave = 0; wave < count; ++wave) {
        const float* heights = &waves()[wave * kSide];
        std::array<Row, kHalf>& half = wave % 2 == 0 ? even : odd;
        for (std::size_t y = 0; y < kHalf; ++y)
            half[y] += heights[y] * rows[wave];
    }
    Rows sums{};
    for (std::size_t y = 0; y < kHalf; ++y) {
        sums[y] = even[y] + odd[y];
        sums[kSide - 1 - y] = even[y] - odd[y];
    }
    return blockOf(sums);
}

ORLEN_INLINE Block addedUpBothWays(const Block& frequencies)
{
    return addedUp(swapped(addedUp(frequencies)));
}

ORLEN_WIDE Block addedUpInWideLanes(const Block& frequencies)
{
    return addedUpBothWays(frequencies);
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

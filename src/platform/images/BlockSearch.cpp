#include "platform/images/BlockSearch.h"

#include <algorithm>
#include <cmath>

namespace orlen {

namespace {

/// Two blocks multiplied pixel by pixel. Fixed lengths and 16-bit numbers, so that the compiler takes eight
/// at a time.
template <int kBlock, int kSide>
std::int32_t product(const std::int16_t* one, const std::int16_t* other)
{
    std::int32_t sum = 0;
    for (int y = 0; y < kBlock; ++y) {
        for (int x = 0; x < kBlock; ++x)
            sum += static_cast<std::int32_t>(one[y * kSide + x]) * other[y * kSide + x];
    }
    return sum;
}

} // namespace

BlockSearch::BlockSearch(const FeaturePrint::Tile& tile)
{
    std::transform(tile.begin(), tile.end(), m_pixels.begin(),
                   [](std::uint8_t value) { return static_cast<std::int16_t>(value - 128); });
    // Sums from the tile's corner; those over a block are differences of four of them.
    constexpr int kEdges = kSide + 1;
    std::array<std::int32_t, static_cast<std::size_t>(kEdges) * kEdges> values{};
    std::array<std::int32_t, static_cast<std::size_t>(kEdges) * kEdges> squares{};
    const auto edge = [](int x, int y) { return static_cast<std::size_t>(y * kEdges + x); };
    for (int y = 0; y < kSide; ++y) {
        std::int32_t rowValues = 0;
        std::int32_t rowSquares = 0;
        for (int x = 0; x < kSide; ++x) {
            const std::int32_t value = *pixel({x, y});
            rowValues += value;
            rowSquares += value * value;
            values[edge(x + 1, y + 1)] = values[edge(x + 1, y)] + rowValues;
            squares[edge(x + 1, y + 1)] = squares[edge(x + 1, y)] + rowSquares;
        }
    }
    const auto over = [&](const auto& sums, int x, int y) {
        return sums[edge(x + kBlock, y + kBlock)] - sums[edge(x, y + kBlock)] - sums[edge(x + kBlock, y)] +
               sums[edge(x, y)];
    };
    for (int y = 0; y < kPlaces; ++y) {
        for (int x = 0; x < kPlaces; ++x) {
            const std::int32_t sum = over(values, x, y);
            // At most 256 times 128 squared times 256, which only just fits.
            const std::int64_t spread =
                std::int64_t{kBlock} * kBlock * over(squares, x, y) - std::int64_t{sum} * sum;
            sumsAt({x, y}) = {.values = sum, .spread = static_cast<std::int32_t>(spread)};
        }
    }
}

BlockSearch::Sums& BlockSearch::sumsAt(Place place)
{
    return m_sums[static_cast<std::size_t>(place.y) * kPlaces + static_cast<std::size_t>(place.x)];
}

const BlockSearch::Sums& BlockSearch::sumsAt(Place place) const
{
    return m_sums[static_cast<std::size_t>(place.y) * kPlaces + static_cast<std::size_t>(place.x)];
}

BlockFind BlockSearch::bestFind(Place block, const BlockSearch& other) const
{
    constexpr float kMiddle = kPlaces / 2;
    constexpr float kPixels = kBlock * kBlock;
    const Sums& own = sumsAt(block);
    BlockFind best{.x = (static_cast<float>(block.x) - kMiddle) / kMiddle,
                   .y = (static_cast<float>(block.y) - kMiddle) / kMiddle,
                   .texture = std::sqrt(static_cast<float>(own.spread)) / kPixels};
    for (int y = std::max(block.y - kReach, 0); y <= std::min(block.y + kReach, kPlaces - 1); ++y) {
        for (int x = std::max(block.x - kReach, 0); x <= std::min(block.x + kReach, kPlaces - 1); ++x) {
            const Sums& there = other.sumsAt({x, y});
            const std::int32_t common = product<kBlock, kSide>(pixel(block), other.pixel({x, y}));
            const float covariance = kPixels * static_cast<float>(common) -
                                     static_cast<float>(own.values) * static_cast<float>(there.values);
            const float spreads = static_cast<float>(own.spread) * static_cast<float>(there.spread);
            // One unit of deviation in the other block, so that an even one matches nothing.
            const float correlation = covariance / (std::sqrt(spreads) + kPixels * kPixels);
            if (correlation > best.correlation) {
                best.correlation = correlation;
                best.moveX = static_cast<float>(x - block.x);
                best.moveY = static_cast<float>(y - block.y);
            }
        }
    }
    return best;
}

std::vector<BlockFind> BlockSearch::findIn(const BlockSearch& other) const
{
    constexpr float kLeastTexture = 2;
    constexpr float kLeastSpread = kLeastTexture * kLeastTexture * kBlock * kBlock * kBlock * kBlock;
    std::vector<BlockFind> finds;
    for (int y = 0; y < kPlaces; y += kBlock) {
        for (int x = 0; x < kPlaces; x += kBlock) {
            if (static_cast<float>(sumsAt({x, y}).spread) >= kLeastSpread)
                finds.push_back(bestFind({x, y}, other));
        }
    }
    return finds;
}

} // namespace orlen

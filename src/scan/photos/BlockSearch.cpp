#include "scan/photos/BlockSearch.h"

#include <algorithm>
#include <cmath>

namespace orlen {

namespace {

constexpr int kPixels = BlockSearch::kBlock * BlockSearch::kBlock;

/// Two blocks multiplied pixel by pixel. Fixed lengths and 16-bit numbers, so that the compiler takes eight
/// at a time.
std::int32_t product(const std::int16_t* one, const std::int16_t* other)
{
    constexpr int kSide = BlockSearch::kSide;
    constexpr int kBlock = BlockSearch::kBlock;
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
    sumUpBlocks();
}

/// Sums over each column of a block's height, moved down row by row; and over a block's width of those,
/// moved to the right.
void BlockSearch::sumUpBlocks()
{
    constexpr std::size_t kAll = static_cast<std::size_t>(kPlaces) * kPlaces;
    std::array<std::int32_t, kSide> sums{};
    std::array<std::int32_t, kSide> squares{};
    const auto addRow = [&](int y, int sign) {
        const std::int16_t* row = pixel({.x = 0, .y = y});
        for (std::size_t x = 0; x < kSide; ++x) {
            sums[x] += sign * row[x];
            squares[x] += sign * row[x] * row[x];
        }
    };
    m_blocks.sums.reserve(kAll);
    std::vector<float> spreads; // variances, times the squared number of pixels
    spreads.reserve(kAll);
    for (int y = 0; y < kSide; ++y) {
        addRow(y, 1);
        if (y >= kBlock)
            addRow(y - kBlock, -1);
        std::int32_t sum = 0;
        std::int32_t square = 0;
        for (std::size_t x = 0; y >= kBlock - 1 && x < kSide; ++x) {
            sum += sums[x] - (x >= kBlock ? sums[x - kBlock] : 0);
            square += squares[x] - (x >= kBlock ? squares[x - kBlock] : 0);
            if (x + 1 < kBlock)
                continue;
            m_blocks.sums.push_back(static_cast<float>(sum));
            spreads.push_back(static_cast<float>(kPixels * std::int64_t{square} - std::int64_t{sum} * sum));
        }
    }
    // One level of noise, so that an even block matches nothing.
    constexpr float kNoise = static_cast<float>(kPixels) * kPixels;
    m_blocks.deviations.resize(kAll);
    m_blocks.onesByDeviations.resize(kAll);
    for (std::size_t i = 0; i < kAll; ++i) {
        m_blocks.deviations[i] = std::sqrt(spreads[i]);
        m_blocks.onesByDeviations[i] = 1 / std::sqrt(spreads[i] + kNoise);
    }
}

std::vector<TilePlace> BlockSearch::texturedBlocks() const
{
    constexpr float kLeastTexture = 2.0F * kPixels;
    std::vector<TilePlace> blocks;
    for (int y = 0; y < kPlaces; y += kBlock) {
        for (int x = 0; x < kPlaces; x += kBlock) {
            if (m_blocks.deviations[index({x, y})] >= kLeastTexture)
                blocks.push_back({x, y});
        }
    }
    std::stable_sort(blocks.begin(), blocks.end(), [this](TilePlace one, TilePlace other) {
        return m_blocks.deviations[index(one)] > m_blocks.deviations[index(other)];
    });
    return blocks;
}

BlockFind BlockSearch::find(TilePlace block, const BlockSearch& other, int reach) const
{
    const std::size_t own = index(block);
    const std::int16_t* pixels = pixel(block);
    TilePlace best = block;
    float most = 0;
    for (int y = std::max(block.y - reach, 0); y <= std::min(block.y + reach, kPlaces - 1); ++y) {
        for (int x = std::max(block.x - reach, 0); x <= std::min(block.x + reach, kPlaces - 1); ++x) {
            const std::size_t there = other.index({x, y});
            const auto common = static_cast<float>(product(pixels, other.pixel({x, y})));
            const float match = (kPixels * common - m_blocks.sums[own] * other.m_blocks.sums[there]) *
                                other.m_blocks.onesByDeviations[there];
            if (match > most) {
                most = match;
                best = {x, y};
            }
        }
    }
    return {.block = block,
            .moveX = static_cast<float>(best.x - block.x),
            .moveY = static_cast<float>(best.y - block.y),
            .texture = m_blocks.deviations[own] / kPixels,
            .correlation = most * m_blocks.onesByDeviations[own]};
}

} // namespace orlen

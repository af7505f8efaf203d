#include "scan/photos/BlockSearch.h"

#include <algorithm>
#include <cmath>
#include <numeric>

namespace orlen {

template <int side, int block>
BlockSearch<side, block>::BlockSearch(const Pixels& pixels)
{
    std::ranges::transform(pixels, m_pixels.begin(),
                           [](std::uint8_t value) { return static_cast<std::int16_t>(value - 128); });
    sumUpBlocks();
}

/// Two blocks multiplied pixel by pixel. Fixed lengths and 16-bit numbers, so that the compiler takes eight
/// at a time.
template <int side, int block>
std::int32_t BlockSearch<side, block>::product(const std::int16_t* one, const std::int16_t* other)
{
    std::int32_t sum = 0;
    for (int y = 0; y < block; ++y) {
        for (int x = 0; x < block; ++x)
            sum += static_cast<std::int32_t>(one[y * side + x]) * other[y * side + x];
    }
    return sum;
}

/// Sums over each column of a block's height, moved down row by row; and over a block's width of those,
/// moved to the right. No number exceeds 2 to the 30th.
template <int side, int block>
void BlockSearch<side, block>::sumUpBlocks()
{
    constexpr std::size_t kAll = static_cast<std::size_t>(kPlaces) * kPlaces;
    // One level of noise, so that an even block matches nothing.
    constexpr float kNoise = static_cast<float>(kPixels) * kPixels;
    m_sums.resize(kAll);
    m_spreads.resize(kAll);
    m_onesBySpreads.resize(kAll);
    std::array<std::int32_t, side> sums{};
    std::array<std::int32_t, side> squares{};
    const auto addRow = [&](int y, int sign) {
        const std::int16_t* row = pixel({.x = 0, .y = y});
        for (std::size_t x = 0; x < side; ++x) {
            sums[x] += sign * row[x];
            squares[x] += sign * row[x] * row[x];
        }
    };
    for (int y = 0; y < block - 1; ++y)
        addRow(y, 1);
    for (int y = 0; y < kPlaces; ++y) {
        addRow(y + block - 1, 1);
        std::array<std::int32_t, kPlaces> blockSums{};
        std::array<std::int32_t, kPlaces> blockSquares{};
        std::int32_t sum = std::accumulate(sums.begin(), sums.begin() + block - 1, 0);
        std::int32_t square = std::accumulate(squares.begin(), squares.begin() + block - 1, 0);
        for (std::size_t x = 0; x < kPlaces; ++x) {
            blockSums[x] = sum += sums[x + block - 1];
            blockSquares[x] = square += squares[x + block - 1];
            sum -= sums[x];
            square -= squares[x];
        }
        const std::size_t row = index({0, y});
        for (std::size_t x = 0; x < kPlaces; ++x) {
            const auto spread = static_cast<float>(kPixels * blockSquares[x] - blockSums[x] * blockSums[x]);
            m_sums[row + x] = static_cast<float>(blockSums[x]);
            m_spreads[row + x] = spread;
            m_onesBySpreads[row + x] = 1 / (spread + kNoise);
        }
        addRow(y, -1);
    }
}

template <int side, int block>
std::vector<TilePlace> BlockSearch<side, block>::texturedBlocks() const
{
    constexpr float kLeastSpread = 2.0F * kPixels * 2.0F * kPixels;
    std::vector<TilePlace> blocks;
    for (int y = 0; y < kPlaces; y += block) {
        for (int x = 0; x < kPlaces; x += block) {
            if (m_spreads[index({x, y})] >= kLeastSpread)
                blocks.push_back({x, y});
        }
    }
    std::ranges::stable_sort(blocks, [this](TilePlace one, TilePlace other) {
        return m_spreads[index(one)] > m_spreads[index(other)];
    });
    return blocks;
}

template <int side, int block>
BlockFind BlockSearch<side, block>::find(TilePlace place, const BlockSearch& other, int reach) const
{
    const std::size_t own = index(place);
    const std::int16_t* pixels = pixel(place);
    const float sum = m_sums[own];
    TilePlace best = place;
    float most = 0; // the square, which needs no root for each place
    for (int y = std::max(place.y - reach, 0); y <= std::min(place.y + reach, kPlaces - 1); ++y) {
        for (int x = std::max(place.x - reach, 0); x <= std::min(place.x + reach, kPlaces - 1); ++x) {
            const std::size_t at = index({x, y});
            const auto common = static_cast<float>(product(pixels, other.pixel({x, y})));
            const float match = std::max(kPixels * common - sum * other.m_sums[at], 0.0F);
            const float square = match * match * other.m_onesBySpreads[at];
            if (square > most) {
                most = square;
                best = {x, y};
            }
        }
    }
    return {.block = {place.x * kScale, place.y * kScale},
            .moveX = static_cast<float>((best.x - place.x) * kScale),
            .moveY = static_cast<float>((best.y - place.y) * kScale),
            .texture = std::sqrt(m_spreads[own]) / kPixels,
            .correlation = std::sqrt(most * m_onesBySpreads[own])};
}

template class BlockSearch<FineSearch::kSide, FineSearch::kBlock>;
template class BlockSearch<CoarseSearch::kSide, CoarseSearch::kBlock>;

} // namespace orlen

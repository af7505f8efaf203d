#include "scan/photos/BlockSearch.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstdint>

namespace orlen {

namespace {

/// From numbers in a row the sums of `block` of them, from each on. Twice as many are added up each time.
template <int block, std::size_t length>
std::array<std::int32_t, length> sumsOf(std::array<std::int32_t, length> numbers)
{
    for (std::size_t apart = 1; apart < block; apart *= 2) {
        for (std::size_t i = 0; i + apart < length; ++i)
            numbers[i] += numbers[i + apart];
    }
    return numbers;
}

} // namespace

template <int side, int block>
BlockSearch<side, block>::BlockSearch(const Pixels& pixels)
{
    const auto level = [&](std::size_t i) { return static_cast<std::int16_t>(pixels[i] - 128); };
    for (std::size_t i = 0; i + 1 < pixels.size(); ++i)
        m_pairs[i] = {level(i), level(i + 1)};
    m_pairs[pixels.size() - 1] = {level(pixels.size() - 1), 0};
    sumUpBlocks();
    findTexture();
}

/// Sums over each column of a block's height, moved down row by row; and over a block's width of those. No
/// number exceeds 2 to the 30th.
template <int side, int block>
void BlockSearch<side, block>::sumUpBlocks()
{
    // One level of noise, so that an even block matches nothing.
    constexpr float kNoise = static_cast<float>(kPixels) * kPixels;
    std::array<std::int32_t, side> sums{};
    std::array<std::int32_t, side> squares{};
    const auto addRow = [&](int y, int sign) {
        const PixelPair* row = pair({.x = 0, .y = y});
        for (std::size_t x = 0; x < side; ++x) {
            sums[x] += sign * row[x].left;
            squares[x] += sign * row[x].left * row[x].left;
        }
    };
    for (int y = 0; y < block - 1; ++y)
        addRow(y, 1);
    for (int y = 0; y < kPlaces; ++y) {
        addRow(y + block - 1, 1);
        const auto blockSums = sumsOf<block>(sums);
        const auto blockSquares = sumsOf<block>(squares);
        const std::size_t row = index({0, y});
        for (std::size_t x = 0; x < kPlaces; ++x) {
            const auto spread = static_cast<float>(kPixels * blockSquares[x] - blockSums[x] * blockSums[x]);
            m_sums[row + x] = static_cast<float>(blockSums[x]);
            m_lengths[row + x] = std::sqrt(static_cast<float>(blockSquares[x]));
            m_spreads[row + x] = spread;
            m_onesBySpreads[row + x] = 1 / (spread + kNoise);
        }
        addRow(y, -1);
    }
}

template <int side, int block>
void BlockSearch<side, block>::findTexture()
{
    constexpr float kLeastSpread = 2.0F * kPixels * 2.0F * kPixels;
    for (int y = 0; y < kPlaces; y += block) {
        for (int x = 0; x < kPlaces; x += block) {
            if (m_spreads[index({x, y})] >= kLeastSpread)
                m_texturedBlocks.push_back({x, y});
        }
    }
    std::ranges::stable_sort(m_texturedBlocks, [this](TilePlace one, TilePlace other) {
        return m_spreads[index(one)] > m_spreads[index(other)];
    });
}

template <int side, int block>
typename BlockSearch<side, block>::Sought BlockSearch<side, block>::soughtAt(TilePlace place) const
{
    constexpr float kSlack = 1.00001F; // more than is lost in rounding
    Sought sought{.place = place, .best = place};
    std::int32_t squares = 0;
    for (int y = block - 1; y > 0; --y) {
        const PixelPair* own = pair({place.x, place.y + y});
        for (int x = 0; x < block; ++x)
            squares += own[x].left * own[x].left;
        if (y == block / 2)
            sought.rests[1] = kSlack * std::sqrt(static_cast<float>(squares));
        if (y == block / 4)
            sought.rests[0] = kSlack * std::sqrt(static_cast<float>(squares));
    }
    return sought;
}

/// Some rows of the block.
template <int side, int block>
template <int fours>
void BlockSearch<side, block>::addRows(Common<fours>& common, const Sought& sought, const BlockSearch& other,
                                       TilePlace first, int row, int end) const
{
    const PixelPair* own = pair({sought.place.x, sought.place.y + row});
    const PixelPair* there = other.pair({first.x, first.y + row});
    for (int y = row; y < end; ++y, own += side, there += side) {
        for (int x = 0; x < block; x += 2) {
            for (std::size_t i = 0; i < common.size(); ++i)
                common[i] += products(own[x], there + x + i * kLanes);
        }
    }
}

/// Whether the rows that are still to come may make any of the places the best one. Their product is at most
/// that of the lengths of both, of which the other's is at most that of the whole block.
template <int side, int block>
template <int fours>
bool BlockSearch<side, block>::mayBeBetter(const Common<fours>& common, const Sought& sought,
                                           const BlockSearch& other, TilePlace first, float rest) const
{
    const float sum = m_sums[index(sought.place)];
    const std::size_t at = index(first);
    IntLanes isBetter{};
    for (std::size_t i = 0; i < common.size(); ++i) {
        const std::size_t lanes = at + i * kLanes;
        const FloatLanes atMost =
            static_cast<float>(kPixels) *
                (__builtin_convertvector(common[i], FloatLanes) + rest * lanesAt(&other.m_lengths[lanes])) -
            sum * lanesAt(&other.m_sums[lanes]);
        isBetter |=
            (atMost > 0.0F) & (atMost * atMost * lanesAt(&other.m_onesBySpreads[lanes]) > sought.most);
    }
    return (isBetter[0] | isBetter[1] | isBetter[2] | isBetter[3]) != 0;
}

/// At `count` places in a row of another picture, from `first` on, of which there are lanes for `fours` times
/// four. What the block has in common with each is squared and divided by the variance there.
template <int side, int block>
template <int fours>
void BlockSearch<side, block>::look(Sought& sought, const BlockSearch& other, TilePlace first,
                                    int count) const
{
    Common<fours> common{};
    addRows<fours>(common, sought, other, first, 0, block / 4);
    if (!mayBeBetter<fours>(common, sought, other, first, sought.rests[0]))
        return;
    addRows<fours>(common, sought, other, first, block / 4, block / 2);
    if (!mayBeBetter<fours>(common, sought, other, first, sought.rests[1]))
        return;
    addRows<fours>(common, sought, other, first, block / 2, block);
    const float sum = m_sums[index(sought.place)];
    const std::size_t at = index(first);
    std::array<FloatLanes, fours> squares{};
    FloatLanes most{};
    for (std::size_t i = 0; i < common.size(); ++i) {
        const FloatLanes match =
            static_cast<float>(kPixels) * __builtin_convertvector(common[i], FloatLanes) -
            sum * lanesAt(&other.m_sums[at + i * kLanes]);
        const FloatLanes square = match * match * lanesAt(&other.m_onesBySpreads[at + i * kLanes]);
        squares[i] = match > 0.0F ? square : FloatLanes{};
        most = squares[i] > most ? squares[i] : most;
    }
    if (std::max({most[0], most[1], most[2], most[3]}) <= sought.most)
        return;
    const auto found = std::bit_cast<std::array<float, std::size_t{fours} * kLanes>>(squares);
    for (int i = 0; i < count; ++i) {
        if (found[static_cast<std::size_t>(i)] > sought.most) {
            sought.most = found[static_cast<std::size_t>(i)];
            sought.best = {first.x + i, first.y};
        }
    }
}

template <int side, int block>
BlockFind BlockSearch<side, block>::find(TilePlace place, const BlockSearch& other, int reach,
                                         TilePlace guessedMove) const
{
    constexpr float kLess = 0.9999F; // so that the place itself, or one before it, is found once more
    constexpr int kFew = 2 * kLanes;
    constexpr int kMany = 3 * kLanes;
    const std::size_t own = index(place);
    Sought sought = soughtAt(place);
    const TilePlace least{std::max(place.x - reach, 0), std::max(place.y - reach, 0)};
    const TilePlace last{std::min(place.x + reach, kPlaces - 1), std::min(place.y + reach, kPlaces - 1)};
    look<1>(sought, other,
            {std::clamp(place.x + guessedMove.x, least.x, last.x),
             std::clamp(place.y + guessedMove.y, least.y, last.y)},
            1);
    sought.most *= kLess;
    const int end = last.x + 1;
    for (int y = least.y; y <= last.y; ++y) {
        int x = least.x;
        for (; end - x > kFew; x += kMany)
            look<3>(sought, other, {x, y}, std::min(end - x, kMany));
        if (x < end)
            look<2>(sought, other, {x, y}, end - x);
    }
    const TilePlace best = sought.best;
    return {.block = {place.x * kScale, place.y * kScale},
            .moveX = static_cast<float>((best.x - place.x) * kScale),
            .moveY = static_cast<float>((best.y - place.y) * kScale),
            .texture = texture(place),
            .correlation = std::sqrt(sought.most * m_onesBySpreads[own])};
}

template class BlockSearch<FineSearch::kSide, FineSearch::kBlock>;
template class BlockSearch<CoarseSearch::kSide, CoarseSearch::kBlock>;

} // namespace orlen

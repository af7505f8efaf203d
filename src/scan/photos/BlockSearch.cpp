#include "scan/photos/BlockSearch.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstring>

namespace orlen {

namespace {

/// From numbers in a row the sums of `block` of them, from each on. Twice as many are added up each time.
template <int block, std::size_t length>
ORLEN_INLINE void sumUp(const std::array<std::int32_t, length>& numbers,
                        std::array<std::int32_t, length>& sums)
{
    sums.back() = numbers.back();
    for (std::size_t i = 0; i + 1 < length; ++i)
        sums[i] = numbers[i] + numbers[i + 1];
    for (std::size_t apart = 2; apart < block; apart *= 2) {
        for (std::size_t i = 0; i + apart < length; ++i)
            sums[i] += sums[i + apart];
    }
}

} // namespace

template <int side, int block>
BlockSearch<side, block>::BlockSearch(const Pixels& pixels) : BlockSearch(pixels, block)
{
    findTexture();
}

template <int side, int block>
BlockSearch<side, block>::BlockSearch(const Pixels& pixels, int reach)
{
    if (WideLanes::areUsed())
        prepareInWideLanes(pixels, reach);
    else
        prepare(pixels, reach);
}

template <int side, int block>
ORLEN_INLINE void BlockSearch<side, block>::prepare(const Pixels& pixels, int reach)
{
    const auto level = [&](std::size_t i) { return static_cast<std::int16_t>(pixels[i] - 128); };
    for (std::size_t i = 0; i + 1 < pixels.size(); ++i)
        m_pairs[i] = {level(i), level(i + 1)};
    m_pairs[pixels.size() - 1] = {level(pixels.size() - 1), 0};
    std::fill_n(m_pairs.end() - kMargin, kMargin, PixelPair{});
    sumUpBlocks(reach);
}

template <int side, int block>
ORLEN_WIDE void BlockSearch<side, block>::prepareInWideLanes(const Pixels& pixels, int reach)
{
    prepare(pixels, reach);
}

/// Sums over each column of a block's height, moved down row by row; and over a block's width of those. No
/// number exceeds 2 to the 30th.
template <int side, int block>
ORLEN_INLINE void BlockSearch<side, block>::sumUpBlocks(int reach)
{
    // One level of noise, so that an even block matches nothing.
    constexpr float kNoise = static_cast<float>(kPixels) * kPixels;
    const auto quarters = quarterSquares();
    std::array<std::int32_t, side> sums{};
    std::array<std::int32_t, side> blockSums{};
    for (int y = 0; y < block; ++y) {
        const PixelPair* row = pair({.x = 0, .y = y});
        for (std::size_t x = 0; x < side; ++x)
            sums[x] += row[x].left;
    }
    const auto moveDown = [&](int y) __attribute__((always_inline))
    {
        const PixelPair* above = pair({.x = 0, .y = y});
        const PixelPair* below = pair({.x = 0, .y = y + block});
        for (std::size_t x = 0; x < side; ++x)
            sums[x] += below[x].left - above[x].left;
    };
    for (int y = 0; y < kPlaces; ++y) {
        if (y > 0)
            moveDown(y - 1);
        if (std::min(y % block, block - y % block) > reach) {
            clearFrom(index({0, y}));
            continue;
        }
        sumUp<block>(sums, blockSums);
        constexpr std::size_t kStep = kQuarter;
        const auto* squares = &quarters[static_cast<std::size_t>(y)];
        const std::size_t row = index({0, y});
        for (std::size_t x = 0; x < kPlaces; ++x) {
            const std::int32_t lowerHalf = squares[2 * kStep][x] + squares[3 * kStep][x];
            const std::int32_t lowerQuarters = squares[kStep][x] + lowerHalf;
            const std::int32_t blockSquares = squares[0][x] + lowerQuarters;
            const auto spread = static_cast<float>(kPixels * blockSquares - blockSums[x] * blockSums[x]);
            m_sums[row + x] = static_cast<float>(blockSums[x]);
            m_rests[0][row + x] = std::sqrt(static_cast<float>(lowerQuarters));
            m_rests[1][row + x] = std::sqrt(static_cast<float>(lowerHalf));
            m_spreads[row + x] = spread;
            m_onesBySpreads[row + x] = 1 / (spread + kNoise);
        }
    }
    clearFrom(kAllPlaces);
}

/// What is read of the next row, or the margin, with the last places of a row.
template <int side, int block>
ORLEN_INLINE void BlockSearch<side, block>::clearFrom(std::size_t place)
{
    for (float* numbers : {m_sums.data(), m_rests[0].data(), m_rests[1].data(), m_onesBySpreads.data()})
        std::fill_n(numbers + place, kMargin, 0.0F);
}

/// The sums of the squares of each quarter of a block, at all places.
template <int side, int block>
ORLEN_INLINE auto BlockSearch<side, block>::quarterSquares() const -> QuarterSquares
{
    QuarterSquares all;
    std::array<std::int32_t, side> squares{};
    for (int y = 0; y < side; ++y) {
        const PixelPair* below = pair({.x = 0, .y = y});
        const PixelPair* above = pair({.x = 0, .y = std::max(y - kQuarter, 0)});
        const std::int32_t sign = y < kQuarter ? 0 : 1;
        for (std::size_t x = 0; x < side; ++x)
            squares[x] += below[x].left * below[x].left - sign * (above[x].left * above[x].left);
        if (y >= kQuarter - 1)
            sumUp<block>(squares, all[static_cast<std::size_t>(y) + 1 - kQuarter]);
    }
    return all;
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
ORLEN_INLINE typename BlockSearch<side, block>::Sought
BlockSearch<side, block>::soughtAt(TilePlace place) const
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
template <typename Lanes, std::size_t count>
ORLEN_INLINE void BlockSearch<side, block>::addRows(Common<Lanes, count>& common, const Sought& sought,
                                                    const BlockSearch& other, TilePlace first, int row,
                                                    int end) const
{
    const PixelPair* own = pair({sought.place.x, sought.place.y + row});
    const PixelPair* there = other.pair({first.x, first.y + row});
    for (int y = row; y < end; ++y, own += side, there += side) {
        for (int x = 0; x < block; x += 2) {
            for (std::size_t i = 0; i < count; ++i)
                Lanes::addProducts(common[i], own[x], there + x + i * Lanes::kCount);
        }
    }
}

/// Whether the rows that are still to come after a quarter, or half of them, may make any of the places the
/// best one. Their product is at most that of the lengths of both.
template <int side, int block>
template <typename Lanes, std::size_t count>
ORLEN_INLINE bool BlockSearch<side, block>::mayBeBetter(const Common<Lanes, count>& common,
                                                        const Sought& sought, const BlockSearch& other,
                                                        TilePlace first, std::size_t looks) const
{
    using Floats = typename Lanes::Floats;
    const float sum = m_sums[index(sought.place)];
    const float rest = sought.rests[looks];
    typename Lanes::Ints isBetter{};
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = index(first) + i * Lanes::kCount;
        Floats lengths;
        Floats sums;
        Floats onesBySpreads;
        load(lengths, &other.m_rests[looks][at]);
        load(sums, &other.m_sums[at]);
        load(onesBySpreads, &other.m_onesBySpreads[at]);
        const Floats atMost =
            static_cast<float>(kPixels) * (__builtin_convertvector(common[i], Floats) + rest * lengths) -
            sum * sums;
        isBetter |= (atMost > 0.0F) & (atMost * atMost * onesBySpreads > sought.most);
    }
    return WideLanes::isAnySet(isBetter);
}

/// At `places` places in a row of another picture, from `first` on, of which there are `count` times the
/// lanes. What the block has in common with each is squared and divided by the variance there.
template <int side, int block>
template <typename Lanes, std::size_t count>
ORLEN_INLINE void BlockSearch<side, block>::look(Sought& sought, const BlockSearch& other, TilePlace first,
                                                 int places) const
{
    using Floats = typename Lanes::Floats;
    Common<Lanes, count> common{};
    addRows<Lanes, count>(common, sought, other, first, 0, block / 4);
    if (!mayBeBetter<Lanes, count>(common, sought, other, first, 0))
        return;
    addRows<Lanes, count>(common, sought, other, first, block / 4, block / 2);
    if (!mayBeBetter<Lanes, count>(common, sought, other, first, 1))
        return;
    addRows<Lanes, count>(common, sought, other, first, block / 2, block);
    const float sum = m_sums[index(sought.place)];
    std::array<float, count * Lanes::kCount> found{};
    typename Lanes::Ints isBetter{};
    for (std::size_t i = 0; i < count; ++i) {
        const std::size_t at = index(first) + i * Lanes::kCount;
        Floats sums;
        Floats onesBySpreads;
        load(sums, &other.m_sums[at]);
        load(onesBySpreads, &other.m_onesBySpreads[at]);
        const Floats match =
            static_cast<float>(kPixels) * __builtin_convertvector(common[i], Floats) - sum * sums;
        const Floats square = match > 0.0F ? match * match * onesBySpreads : Floats{};
        isBetter |= square > sought.most;
        std::memcpy(&found[i * Lanes::kCount], &square, sizeof square);
    }
    if (!WideLanes::isAnySet(isBetter))
        return;
    for (int i = 0; i < places; ++i) {
        if (found[static_cast<std::size_t>(i)] > sought.most) {
            sought.most = found[static_cast<std::size_t>(i)];
            sought.best = {first.x + i, first.y};
        }
    }
}

template <int side, int block>
template <typename Lanes>
ORLEN_INLINE void BlockSearch<side, block>::lookAround(Sought& sought, const BlockSearch& other, int reach,
                                                       TilePlace guessedMove) const
{
    constexpr float kLess = 0.9999F; // so that the place itself, or one before it, is found once more
    const TilePlace place = sought.place;
    const TilePlace least{std::max(place.x - reach, 0), std::max(place.y - reach, 0)};
    const TilePlace last{std::min(place.x + reach, kPlaces - 1), std::min(place.y + reach, kPlaces - 1)};
    look<FourLanes, 1>(sought, other,
                       {std::clamp(place.x + guessedMove.x, least.x, last.x),
                        std::clamp(place.y + guessedMove.y, least.y, last.y)},
                       1);
    sought.most *= kLess;
    const int end = last.x + 1;
    for (int y = least.y; y <= last.y; ++y) {
        int x = least.x;
        for (; end - x > 2 * Lanes::kCount; x += 3 * Lanes::kCount)
            look<Lanes, 3>(sought, other, {x, y}, std::min(end - x, 3 * Lanes::kCount));
        if (end - x > Lanes::kCount)
            look<Lanes, 2>(sought, other, {x, y}, end - x);
        else if (end > x)
            look<Lanes, 1>(sought, other, {x, y}, end - x);
    }
}

template <int side, int block>
ORLEN_WIDE void BlockSearch<side, block>::lookAroundInWideLanes(Sought& sought, const BlockSearch& other,
                                                                int reach, TilePlace guessedMove) const
{
#ifdef __x86_64__
    lookAround<EightLanes>(sought, other, reach, guessedMove);
#else
    lookAround<FourLanes>(sought, other, reach, guessedMove);
#endif
}

template <int side, int block>
BlockFind BlockSearch<side, block>::find(TilePlace place, const BlockSearch& other, int reach,
                                         TilePlace guessedMove) const
{
    Sought sought = soughtAt(place);
    if (WideLanes::areUsed())
        lookAroundInWideLanes(sought, other, reach, guessedMove);
    else
        lookAround<FourLanes>(sought, other, reach, guessedMove);
    const TilePlace best = sought.best;
    return {.block = {place.x * kScale, place.y * kScale},
            .moveX = static_cast<float>((best.x - place.x) * kScale),
            .moveY = static_cast<float>((best.y - place.y) * kScale),
            .texture = texture(place),
            .correlation = std::sqrt(sought.most * m_onesBySpreads[index(place)])};
}

template class BlockSearch<FineSearch::kSide, FineSearch::kBlock>;
template class BlockSearch<CoarseSearch::kSide, CoarseSearch::kBlock>;

} // namespace orlen

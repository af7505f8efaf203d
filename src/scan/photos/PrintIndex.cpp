#include "scan/photos/PrintIndex.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/Prefetch.h"
#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <numeric>
#include <optional>

namespace orlen {

namespace {

/// Numbers of a unit vector in whole steps. No sum of their products exceeds 16 bits, as no product of two
/// such vectors exceeds the square of this, nor do its parts; nor does that of two beside each other with
/// `kAdded` added to either number of one of them.
constexpr float kSteps = 110;
constexpr int kAdded = 128;

constexpr float kLeastCosine = 1 - kCoarseLimit * kCoarseLimit / 2;
/// More than what is lost when a cosine is computed in another order.
constexpr float kNothing = 1e-5F;

std::int8_t inSteps(float number)
{
    const float half = std::copysign(0.5F, number); // a cast is much faster than lround
    return static_cast<std::int8_t>(number * kSteps + half);
}

/// What sketches of directions with that cosine have in common, at least, if rounding moved them that far.
std::int16_t leastProduct(float cosine, float oneMoved, float otherMoved)
{
    constexpr float kLonger = 1.03F; ///< than 1, which a rounded sketch may be
    return static_cast<std::int16_t>((cosine - kLonger * (oneMoved + otherMoved)) * kSteps * kSteps);
}

/// The sum of the products of their numbers.
ORLEN_INLINE std::int32_t inCommon(const PrintIndex::Direction& one, const PrintIndex::Direction& other)
{
    constexpr std::size_t kSome = 16;
    constexpr int kHalf = 16; // bits
    using Bytes [[gnu::vector_size(kSome)]] = std::int8_t;
    using Words [[gnu::vector_size(kSome * sizeof(std::int16_t))]] = std::int16_t;
    using Sums [[gnu::vector_size(kSome * sizeof(std::int16_t))]] = std::int32_t;
    Sums sums{};
    for (std::size_t i = 0; i < one.size(); i += kSome) {
        Bytes ones{};
        Bytes others{};
        std::memcpy(&ones, &one[i], sizeof ones);
        std::memcpy(&others, &other[i], sizeof others);
        const Words products = __builtin_convertvector(ones, Words) * __builtin_convertvector(others, Words);
        Sums pairs{};
        std::memcpy(&pairs, &products, sizeof pairs);
        sums += (pairs >> kHalf) + (pairs << kHalf >> kHalf);
    }
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < sizeof sums / sizeof sum; ++i)
        sum += sums[i];
    return sum;
}

float lengthOf(std::span<const std::int8_t> numbers)
{
    float squares = 0;
    for (const std::int8_t number : numbers)
        squares += static_cast<float>(number) * static_cast<float>(number);
    return std::sqrt(squares);
}

void keepNearest(std::vector<PrintIndex::Near>& all, std::size_t most)
{
    const auto isNearer = [](const PrintIndex::Near& one, const PrintIndex::Near& other) {
        return one.coarse != other.coarse ? one.coarse < other.coarse : one.number < other.number;
    };
    const std::size_t kept = std::min(most, all.size());
    std::partial_sort(all.begin(), all.begin() + static_cast<std::ptrdiff_t>(kept), all.end(), isNearer);
    all.resize(kept);
}

} // namespace

/// A direction that is looked for.
struct PrintIndex::Query {
    Query(const Direction& of, std::size_t mostFound, const PrintIndex& in)
        : direction(&of), squares(product(of, of)), most(mostFound), index(&in), rounded(sketchOf(of))
    {
        setLeast(kLeastCosine);
        constexpr unsigned kByte = 8;
        std::array<int, kQuads> middles{};
        for (std::size_t i = 0; i < kNumbers; ++i) {
            const std::int8_t number = rounded.sketch[i];
            quads[i / kQuad] |= SoughtQuad{static_cast<std::uint8_t>(number)} << i % kQuad * kByte;
            middles[i / kQuad] += kAdded * number;
        }
        const auto ofLength = middles.begin() + kStart / kQuad;
        beforeStart = -std::accumulate(middles.begin(), ofLength + 1, 0);
        beforeRest = *ofLength - std::accumulate(ofLength + 1, middles.end(), 0);
    }

    void setLeast(float cosine)
    {
        leastCosine = cosine;
        leastOfStart = leastProduct(cosine, rounded.startMoved, index->m_startMoved);
        least = leastProduct(cosine, rounded.moved, index->m_moved);
    }

    const Direction* direction;
    std::int32_t squares; ///< of its length
    std::size_t most;
    const PrintIndex* index;
    Rounded rounded;
    std::array<SoughtQuad, kQuads> quads{}; ///< four numbers of the sketch
    // What to begin with, as there is too much in the numbers of bundles.
    int beforeStart = 0;           ///< and the length of what follows it
    int beforeRest = 0;            ///< all but that length
    std::int16_t leastOfStart = 0; ///< for the sketches of near ones
    std::int16_t least = 0;
    float leastCosine = 0;
    std::vector<Near> found;
};

PrintIndex::Rounded PrintIndex::sketchOf(const Direction& direction)
{
    const float length = std::max(lengthOf(direction), 1.0F);
    const std::span<const std::int8_t> numbers(direction);
    Rounded rounded;
    std::array<float, kNumbers> moved{}; // squared
    std::size_t count = 0;
    const auto put = [&](float number) {
        rounded.sketch[count] = inSteps(number / length);
        const float by = number / length - static_cast<float>(rounded.sketch[count]) / kSteps;
        moved[count++] = by * by;
    };
    for (std::size_t i = 0; i < kHead; ++i) {
        if (i == kStart) {
            put(lengthOf(numbers.subspan(kStart)));
            count += kQuad - 1;
        }
        put(static_cast<float>(numbers[i]));
    }
    constexpr std::size_t kRest = (FeaturePrint::kLength - kHead) / kRests;
    for (std::size_t i = 0; i < kRests; ++i)
        put(lengthOf(numbers.subspan(kHead + i * kRest, kRest)));
    const auto start = std::span(moved).first(kStart + 1);
    rounded.startMoved = std::sqrt(std::accumulate(start.begin(), start.end(), 0.0F));
    rounded.moved = std::sqrt(std::accumulate(moved.begin(), moved.end(), 0.0F) - moved[kStart]);
    return rounded;
}

void PrintIndex::add(const Direction& direction)
{
    const std::size_t lane = m_directions.size() % kSketches;
    if (lane == 0)
        m_bundles.emplace_back();
    const Rounded rounded = sketchOf(direction);
    const auto level = [](std::int8_t number) { return static_cast<unsigned>(number + kAdded); };
    for (std::size_t i = 0; i < kNumbers; i += 2) {
        constexpr unsigned kByte = 8;
        m_bundles.back()[i / kQuad].pairs[2 * lane + i % kQuad / 2] =
            static_cast<std::uint16_t>(level(rounded.sketch[i]) | level(rounded.sketch[i + 1]) << kByte);
    }
    m_startMoved = std::max(m_startMoved, rounded.startMoved);
    m_moved = std::max(m_moved, rounded.moved);
    m_directions.push_back(direction);
    m_squares.push_back(product(direction, direction));
}

ORLEN_INLINE void PrintIndex::look(Query& query, std::size_t number) const
{
    const std::int32_t common = inCommon(m_directions[number], *query.direction);
    const float lengths =
        std::sqrt(static_cast<float>(query.squares) * static_cast<float>(m_squares[number]));
    if (static_cast<float>(common) < (query.leastCosine - kNothing) * lengths)
        return;
    const std::optional<float> coarse = coarseDistance(common, query.squares, m_squares[number]);
    if (!coarse)
        return;
    query.found.push_back({*coarse, number});
    constexpr std::size_t kSlack = 4;
    if (query.found.size() / kSlack <= query.most)
        return;
    // In a crowd, only few are nearer than the nearest so far.
    keepNearest(query.found, query.most);
    const float farthest = query.found.back().coarse;
    query.setLeast(1 - farthest * farthest / 2);
}

/// Which of a bundle may be near each of the first `count` queries, a bit for each. For several queries at a
/// time it is loaded once.
template <typename Sums, std::size_t count>
ORLEN_INLINE void PrintIndex::lookAtBundle(const Bundle& bundle, std::span<const Query> queries,
                                           std::span<std::uint32_t> found)
{
    constexpr std::size_t kLength = kStart / kQuad;
    Sums all[count];
#pragma GCC unroll 8
    for (std::size_t q = 0; q < count; ++q)
        all[q].addToAll(queries[q].beforeStart);
    for (std::size_t i = 0; i < kLength; ++i) {
#pragma GCC unroll 8
        for (std::size_t q = 0; q < count; ++q)
            all[q].add(bundle[i], queries[q].quads[i]);
    }
#pragma GCC unroll 8
    for (std::size_t q = 0; q < count; ++q) {
        const Query& query = queries[q];
        Sums sums = all[q];
        Sums start = sums;
        start.add(bundle[kLength], query.quads[kLength]);
        found[q] = start.atLeast(query.leastOfStart);
        if (found[q] == 0)
            continue;
        sums.addToAll(query.beforeRest);
        for (std::size_t i = kLength + 1; i < kQuads; ++i)
            sums.add(bundle[i], query.quads[i]);
        found[q] = sums.atLeast(query.least);
    }
}

/// Bundle by bundle, so that each is fetched from memory once. What is looked at closely is fetched
/// while the next bundle is looked at.
template <typename Sums>
ORLEN_INLINE void PrintIndex::lookThroughBundles(std::span<Query> queries) const
{
    constexpr std::size_t kTogether = Sums::kTogether;
    std::vector<std::uint32_t> found(queries.size());
    std::vector<std::uint32_t> foundBefore(queries.size());
    const auto lookAtFoundBefore = [&](std::size_t first) __attribute__((always_inline))
    {
        for (std::size_t i = 0; i < queries.size(); ++i) {
            for (std::uint32_t left = foundBefore[i]; left != 0; left &= left - 1)
                look(queries[i], first + static_cast<std::size_t>(std::countr_zero(left)));
        }
    };
    std::size_t first = 0;
    for (; first < m_directions.size(); first += kSketches) {
        const Bundle& bundle = m_bundles[first / kSketches];
        const std::size_t count = std::min(kSketches, m_directions.size() - first);
        const std::uint32_t inBundle = ~std::uint32_t{0} >> (kSketches - count);
        const std::span<const Query> all = queries;
        std::size_t next = 0;
        for (; next + kTogether <= all.size(); next += kTogether)
            lookAtBundle<Sums, kTogether>(bundle, all.subspan(next), std::span(found).subspan(next));
        for (; next < all.size(); ++next)
            lookAtBundle<Sums, 1>(bundle, all.subspan(next), std::span(found).subspan(next));
        for (std::uint32_t& some : found) {
            some &= inBundle;
            for (std::uint32_t left = some; left != 0; left &= left - 1)
                prefetch(m_directions[first + static_cast<std::size_t>(std::countr_zero(left))]);
        }
        lookAtFoundBefore(first - kSketches);
        found.swap(foundBefore);
    }
    lookAtFoundBefore(first - kSketches);
}

#ifdef __x86_64__
ORLEN_WIDE void PrintIndex::lookThroughInWideLanes(std::span<Query> queries) const
{
    lookThroughBundles<WideSketchSums>(queries);
}

ORLEN_WIDEST void PrintIndex::lookThroughInWidestLanes(std::span<Query> queries) const
{
    lookThroughBundles<WidestSketchSums>(queries);
}
#endif

void PrintIndex::lookThrough(std::span<Query> queries) const
{
#ifdef __x86_64__
    if (WideLanes::width() == WideLanes::Width::widest) {
        lookThroughInWidestLanes(queries);
        return;
    }
    if (WideLanes::areUsed()) {
        lookThroughInWideLanes(queries);
        return;
    }
#endif
    lookThroughBundles<NarrowSketchSums>(queries);
}

std::vector<std::vector<PrintIndex::Near>> PrintIndex::near(std::span<const Direction> directions,
                                                            std::size_t most) const
{
    std::vector<Query> queries;
    queries.reserve(directions.size());
    for (const Direction& direction : directions)
        queries.emplace_back(direction, most, *this);
    lookThrough(queries);
    std::vector<std::vector<Near>> found;
    for (Query& query : queries) {
        keepNearest(query.found, most);
        found.push_back(std::move(query.found));
    }
    return found;
}

} // namespace orlen

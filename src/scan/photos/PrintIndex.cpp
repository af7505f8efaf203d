#include "scan/photos/PrintIndex.h"

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
/// such vectors exceeds the square of this, nor do its parts.
constexpr float kSteps = 177;

constexpr float kLeastCosine = 1 - kCoarseLimit * kCoarseLimit / 2;
/// More than what is lost when a cosine is computed in another order.
constexpr float kNothing = 1e-5F;

std::int16_t inSteps(float number)
{
    return static_cast<std::int16_t>(std::lround(number * kSteps));
}

/// What sketches of directions with that cosine have in common, at least, if rounding moved them that far.
std::int16_t leastProduct(float cosine, float oneMoved, float otherMoved)
{
    constexpr float kLonger = 1.03F; ///< than 1, which a rounded sketch may be
    return static_cast<std::int16_t>((cosine - kLonger * (oneMoved + otherMoved)) * kSteps * kSteps);
}

/// The sum of the products of their numbers.
[[gnu::always_inline]] inline std::int32_t inCommon(const PrintIndex::Direction& one,
                                                    const PrintIndex::Direction& other)
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

/// Whether the processor has lanes of 256 bits.
bool hasWideLanes()
{
#ifdef __x86_64__
    static const bool has = __builtin_cpu_supports("avx2") != 0;
    return has;
#else
    return false;
#endif
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
    // Left to itself, the compiler takes four at a time.
    using Lanes [[gnu::vector_size(kLanes * sizeof(std::int16_t))]] = std::int16_t;
    /// Of a bundle; two, as one addition has to wait for the one before.
    struct Sums {
        Lanes left{};
        Lanes right{};
    };
    /// Bits set for each of a bundle that may be near.
    using Marks = std::array<std::int16_t, kTogether>;

    Query(const Direction& of, std::size_t mostFound, const PrintIndex& in)
        : direction(&of), squares(product(of, of)), most(mostFound), index(&in), rounded(sketchOf(of))
    {
        setLeast(kLeastCosine);
    }

    void setLeast(float cosine)
    {
        leastCosine = cosine;
        leastOfStart = leastProduct(cosine, rounded.startMoved, index->m_startMoved);
        least = leastProduct(cosine, rounded.moved, index->m_moved);
    }

    [[gnu::always_inline]] void addProducts(Sums& sums, const Bundle& bundle, std::size_t first,
                                            std::size_t end) const
    {
        constexpr std::size_t kStep = 4;
        for (std::size_t i = first; i < end; i += kStep) {
            for (std::size_t step = 0; step < kStep; ++step)
                addProduct(sums, bundle, i + step);
        }
    }

    [[gnu::always_inline]] void addProduct(Sums& sums, const Bundle& bundle, std::size_t i) const
    {
        Lanes left{};
        Lanes right{};
        std::memcpy(&left, bundle[i].data(), sizeof left);
        std::memcpy(&right, bundle[i].data() + kLanes, sizeof right);
        sums.left += left * rounded.sketch[i];
        sums.right += right * rounded.sketch[i];
    }

    /// Whether any of the bundle may be near, and which.
    [[nodiscard]] [[gnu::always_inline]] bool hasNear(const Bundle& bundle, Marks& marks) const
    {
        Sums start;
        addProducts(start, bundle, 0, kStart);
        Sums sums = start;
        addProduct(sums, bundle, kStart);
        if (!isAnySet((sums.left >= Lanes{} + leastOfStart) | (sums.right >= Lanes{} + leastOfStart)))
            return false;
        addProducts(start, bundle, kStart + 1, kNumbers);
        const Lanes left = start.left >= Lanes{} + least;
        const Lanes right = start.right >= Lanes{} + least;
        std::memcpy(marks.data(), &left, sizeof left);
        std::memcpy(marks.data() + kLanes, &right, sizeof right);
        return isAnySet(left | right);
    }

    [[nodiscard]] [[gnu::always_inline]] static bool isAnySet(const Lanes& lanes)
    {
        const auto parts =
            std::bit_cast<std::array<std::uint64_t, sizeof lanes / sizeof(std::uint64_t)>>(lanes);
        std::uint64_t any = 0;
        for (const std::uint64_t part : parts)
            any |= part;
        return any != 0;
    }

    const Direction* direction;
    std::int32_t squares; ///< of its length
    std::size_t most;
    const PrintIndex* index;
    Rounded rounded;
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
        if (i == kStart)
            put(lengthOf(numbers.subspan(kStart)));
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
    const std::size_t lane = m_directions.size() % kTogether;
    if (lane == 0)
        m_bundles.emplace_back();
    const Rounded rounded = sketchOf(direction);
    for (std::size_t i = 0; i < kNumbers; ++i)
        m_bundles.back()[i][lane] = rounded.sketch[i];
    m_startMoved = std::max(m_startMoved, rounded.startMoved);
    m_moved = std::max(m_moved, rounded.moved);
    m_directions.push_back(direction);
    m_squares.push_back(product(direction, direction));
}

[[gnu::always_inline]] inline void PrintIndex::look(Query& query, std::size_t number) const
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

/// Bundle by bundle, so that each is fetched from memory once.
[[gnu::always_inline]] inline void PrintIndex::lookThroughBundles(std::span<Query> queries) const
{
    for (std::size_t first = 0; first < m_directions.size(); first += kTogether) {
        const Bundle& bundle = m_bundles[first / kTogether];
        const std::size_t count = std::min(kTogether, m_directions.size() - first);
        for (Query& query : queries) {
            Query::Marks isNear{};
            if (!query.hasNear(bundle, isNear))
                continue;
            for (std::size_t i = 0; i < count; ++i) {
                if (isNear[i] != 0)
                    look(query, first + i);
            }
        }
    }
}

#ifdef __x86_64__
[[gnu::target("avx2")]]
#endif
void PrintIndex::lookThroughInWideLanes(std::span<Query> queries) const
{
    lookThroughBundles(queries);
}

void PrintIndex::lookThrough(std::span<Query> queries) const
{
    if (hasWideLanes())
        lookThroughInWideLanes(queries);
    else
        lookThroughBundles(queries);
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

#include "scan/photos/PrintIndex.h"

#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <bit>
#include <cmath>
#include <cstring>
#include <optional>

namespace orlen {

namespace {

/// Numbers of a unit vector in whole steps. No sum of their products exceeds 16 bits, as no product of two
/// such vectors exceeds the square of this, nor do its parts.
constexpr float kSteps = 177;

/// What a product of sketches may be too low by because they are rounded: half a step in each of 52 numbers
/// of both, which are not longer than 1.
constexpr float kRounding = 0.0415F;
/// The same for their starts, of 33 numbers.
constexpr float kStartRounding = 0.0330F;
constexpr float kLeastCosine = 1 - kCoarseLimit * kCoarseLimit / 2;
/// More than what is lost when a cosine is computed in another order.
constexpr float kNothing = 1e-5F;

std::int16_t inSteps(float number)
{
    return static_cast<std::int16_t>(std::lround(number * kSteps));
}

/// What sketches of directions with that cosine have in common, at least.
std::int16_t leastProduct(float cosine, float rounding)
{
    return static_cast<std::int16_t>((cosine - rounding) * kSteps * kSteps);
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
    // Left to itself, the compiler takes four at a time.
    using Lanes [[gnu::vector_size(kLanes * sizeof(std::int16_t))]] = std::int16_t;
    /// Of a bundle; two, as one addition has to wait for the one before.
    struct Sums {
        Lanes left{};
        Lanes right{};
    };
    /// Bits set for each of a bundle that may be near.
    using Marks = std::array<std::int16_t, kTogether>;

    Query(const Direction& of, std::size_t mostFound)
        : direction(&of), squares(product(of, of)), most(mostFound)
    {
        const Sketch sketch = sketchOf(of);
        for (std::size_t i = 0; i < kNumbers; ++i)
            numbers[i] = Lanes{} + sketch[i];
        setLeast(kLeastCosine);
    }

    void setLeast(float cosine)
    {
        leastCosine = cosine;
        leastOfStart = Lanes{} + leastProduct(cosine, kStartRounding);
        least = Lanes{} + leastProduct(cosine, kRounding);
    }

    void addProducts(Sums& sums, const Bundle& bundle, std::size_t first, std::size_t end) const
    {
        for (std::size_t i = first; i < end; ++i) {
            Lanes left{};
            Lanes right{};
            std::memcpy(&left, bundle[i].data(), sizeof left);
            std::memcpy(&right, bundle[i].data() + kLanes, sizeof right);
            sums.left += left * numbers[i];
            sums.right += right * numbers[i];
        }
    }

    /// Whether any of the bundle may be near, and which.
    [[nodiscard]] bool hasNear(const Bundle& bundle, Marks& marks) const
    {
        Sums start;
        addProducts(start, bundle, 0, kStart);
        Sums sums = start;
        addProducts(sums, bundle, kStart, kStart + 1);
        if (!isAnySet((sums.left >= leastOfStart) | (sums.right >= leastOfStart)))
            return false;
        addProducts(start, bundle, kStart + 1, kNumbers);
        const Lanes left = start.left >= least;
        const Lanes right = start.right >= least;
        std::memcpy(marks.data(), &left, sizeof left);
        std::memcpy(marks.data() + kLanes, &right, sizeof right);
        return isAnySet(left | right);
    }

    [[nodiscard]] static bool isAnySet(Lanes lanes)
    {
        const auto halves = std::bit_cast<std::array<std::uint64_t, 2>>(lanes);
        return (halves[0] | halves[1]) != 0;
    }

    const Direction* direction;
    std::int32_t squares; ///< of its length
    std::size_t most;
    std::array<Lanes, kNumbers> numbers; ///< of the sketch, each as often as there are lanes
    Lanes leastOfStart;                  ///< for the sketches of near ones
    Lanes least;
    float leastCosine = 0;
    std::vector<Near> found;
};

PrintIndex::Sketch PrintIndex::sketchOf(const Direction& direction)
{
    const float length = std::max(lengthOf(direction), 1.0F);
    const std::span<const std::int8_t> numbers(direction);
    Sketch sketch{};
    auto next = sketch.begin();
    for (std::size_t i = 0; i < kHead; ++i) {
        if (i == kStart)
            *next++ = inSteps(lengthOf(numbers.subspan(kStart)) / length);
        *next++ = inSteps(static_cast<float>(numbers[i]) / length);
    }
    constexpr std::size_t kRest = (FeaturePrint::kLength - kHead) / kRests;
    for (std::size_t i = 0; i < kRests; ++i)
        *next++ = inSteps(lengthOf(numbers.subspan(kHead + i * kRest, kRest)) / length);
    return sketch;
}

void PrintIndex::add(const Direction& direction)
{
    const std::size_t lane = m_directions.size() % kTogether;
    if (lane == 0)
        m_bundles.emplace_back();
    const Sketch sketch = sketchOf(direction);
    for (std::size_t i = 0; i < kNumbers; ++i)
        m_bundles.back()[i][lane] = sketch[i];
    m_directions.push_back(direction);
    m_squares.push_back(product(direction, direction));
}

void PrintIndex::look(Query& query, std::size_t number) const
{
    const std::int32_t common = product(m_directions[number], *query.direction);
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

std::vector<std::vector<PrintIndex::Near>> PrintIndex::near(std::span<const Direction> directions,
                                                            std::size_t most) const
{
    std::vector<Query> queries;
    queries.reserve(directions.size());
    for (const Direction& direction : directions)
        queries.emplace_back(direction, most);
    // Bundle by bundle, so that each is fetched from memory once.
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
    std::vector<std::vector<Near>> found;
    for (Query& query : queries) {
        keepNearest(query.found, most);
        found.push_back(std::move(query.found));
    }
    return found;
}

} // namespace orlen

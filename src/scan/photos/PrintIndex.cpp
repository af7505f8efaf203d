#include "scan/photos/PrintIndex.h"

#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <iterator>
#include <optional>

namespace orlen {

namespace {

/// Numbers of a unit vector in whole steps. No sum of their products exceeds 16 bits, as no product of two
/// such vectors exceeds the square of this, nor do its parts.
constexpr float kSteps = 177;

/// What a product of sketches may be too low by because they are rounded: half a step in each of 52 numbers
/// of both, which are not longer than 1.
constexpr float kRounding = 0.0415F;
constexpr float kLeastCosine = 1 - kCoarseLimit * kCoarseLimit / 2;
/// More than what is lost when a cosine is computed in another order.
constexpr float kNothing = 1e-5F;

std::int16_t inSteps(float number)
{
    return static_cast<std::int16_t>(std::lround(number * kSteps));
}

/// What sketches of directions with that cosine have in common, at least.
std::int16_t leastProduct(float cosine)
{
    return static_cast<std::int16_t>((cosine - kRounding) * kSteps * kSteps);
}

float inCommon(const PrintIndex::Direction& one, const PrintIndex::Direction& other)
{
    std::int32_t sum = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        sum += std::int32_t{one[i]} * other[i];
    return static_cast<float>(sum);
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

    Query(const Direction& of, std::size_t mostFound) : direction(&of), length(lengthOf(of)), most(mostFound)
    {
        const Sketch sketch = sketchOf(of);
        for (std::size_t i = 0; i < kNumbers; ++i)
            numbers[i] = Lanes{} + sketch[i];
        setLeast(kLeastCosine);
    }

    void setLeast(float cosine)
    {
        leastCosine = cosine;
        least = Lanes{} + leastProduct(cosine);
    }

    /// All bits set for each of the bundle that may be near.
    [[nodiscard]] std::array<std::int16_t, kLanes> nearOnes(const Bundle& bundle) const
    {
        Lanes sums{};
        for (std::size_t i = 0; i < kNumbers; ++i) {
            Lanes lanes{};
            std::memcpy(&lanes, bundle[i].data(), sizeof lanes);
            sums += lanes * numbers[i];
        }
        const Lanes isNear = sums >= least;
        std::array<std::int16_t, kLanes> result{};
        std::memcpy(result.data(), &isNear, sizeof isNear);
        return result;
    }

    const Direction* direction;
    float length;
    std::size_t most;
    std::array<Lanes, kNumbers> numbers; ///< of the sketch, each as often as there are lanes
    Lanes least;                         ///< for the sketches of near ones
    float leastCosine = 0;
    std::vector<Near> found;
};

PrintIndex::Sketch PrintIndex::sketchOf(const Direction& direction)
{
    const float length = std::max(lengthOf(direction), 1.0F);
    const std::span<const std::int8_t> numbers(direction);
    Sketch sketch{};
    for (std::size_t i = 0; i < kHead; ++i)
        sketch[i] = inSteps(static_cast<float>(numbers[i]) / length);
    constexpr std::size_t kRest = (FeaturePrint::kLength - kHead) / kRests;
    for (std::size_t i = 0; i < kRests; ++i)
        sketch[kHead + i] = inSteps(lengthOf(numbers.subspan(kHead + i * kRest, kRest)) / length);
    return sketch;
}

void PrintIndex::add(const Direction& direction)
{
    const std::size_t lane = m_directions.size() % kLanes;
    if (lane == 0)
        m_bundles.emplace_back();
    const Sketch sketch = sketchOf(direction);
    for (std::size_t i = 0; i < kNumbers; ++i)
        m_bundles.back()[i][lane] = sketch[i];
    m_directions.push_back(direction);
    m_lengths.push_back(lengthOf(direction));
}

void PrintIndex::look(Query& query, std::size_t number) const
{
    const Direction& direction = m_directions[number];
    const float least = (query.leastCosine - kNothing) * query.length * m_lengths[number];
    if (inCommon(direction, *query.direction) < least)
        return;
    const std::optional<float> coarse = coarseDistance(direction, *query.direction);
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
    for (std::size_t first = 0; first < m_directions.size(); first += kLanes) {
        const Bundle& bundle = m_bundles[first / kLanes];
        const std::size_t lanes = std::min(kLanes, m_directions.size() - first);
        for (Query& query : queries) {
            const auto isNear = query.nearOnes(bundle);
            if (isNear == std::array<std::int16_t, kLanes>{})
                continue;
            for (std::size_t lane = 0; lane < lanes; ++lane) {
                if (isNear[lane] != 0)
                    look(query, first + lane);
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

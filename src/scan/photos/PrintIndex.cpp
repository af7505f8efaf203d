#include "scan/photos/PrintIndex.h"

#include "scan/photos/PrintDistance.h"

#include <algorithm>
#include <cmath>
#include <cstring>
#include <optional>

namespace orlen {

namespace {

/// Numbers of a unit vector in whole steps. No sum of their products exceeds 16 bits, as no product of two
/// such vectors exceeds the square of this, nor do its parts.
constexpr float kSteps = 178;

/// What a product of sketches may be too low by because they are rounded: half a step in each of 36 numbers
/// of both, which are not longer than 1.
constexpr float kRounding = 0.035F;
constexpr float kLeastCosine = 1 - kCoarseLimit * kCoarseLimit / 2;
constexpr auto kLeastProduct = static_cast<std::int16_t>((kLeastCosine - kRounding) * kSteps * kSteps);

std::int16_t inSteps(float number)
{
    return static_cast<std::int16_t>(std::lround(number * kSteps));
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

PrintIndex::Sketch PrintIndex::sketchOf(const Direction& direction)
{
    const auto lengthOf = [](std::span<const std::int8_t> numbers) {
        float squares = 0;
        for (const std::int8_t number : numbers)
            squares += static_cast<float>(number) * static_cast<float>(number);
        return std::sqrt(squares);
    };
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
}

std::array<std::int16_t, PrintIndex::kLanes> PrintIndex::products(const Bundle& bundle, const Sketch& sketch)
{
    // Left to itself, the compiler takes four at a time.
    using Lanes [[gnu::vector_size(kLanes * sizeof(std::int16_t))]] = std::int16_t;
    Lanes sums{};
    for (std::size_t i = 0; i < kNumbers; ++i) {
        Lanes numbers{};
        std::memcpy(&numbers, bundle[i].data(), sizeof numbers);
        sums += numbers * sketch[i];
    }
    std::array<std::int16_t, kLanes> result{};
    std::memcpy(result.data(), &sums, sizeof sums);
    return result;
}

std::vector<std::vector<PrintIndex::Near>> PrintIndex::near(std::span<const Direction> directions,
                                                            std::size_t most) const
{
    std::vector<Sketch> sketches;
    std::ranges::transform(directions, std::back_inserter(sketches), sketchOf);
    std::vector<std::vector<Near>> found(directions.size());
    const auto look = [&](std::size_t one, std::size_t number) {
        const std::optional<float> coarse = coarseDistance(m_directions[number], directions[one]);
        if (!coarse)
            return;
        found[one].push_back({*coarse, number});
        constexpr std::size_t kSlack = 4;
        if (found[one].size() / kSlack > most)
            keepNearest(found[one], most);
    };
    // Bundle by bundle, so that each is fetched from memory once.
    for (std::size_t first = 0; first < m_directions.size(); first += kLanes) {
        const Bundle& bundle = m_bundles[first / kLanes];
        const std::size_t lanes = std::min(kLanes, m_directions.size() - first);
        for (std::size_t one = 0; one < directions.size(); ++one) {
            const auto sums = products(bundle, sketches[one]);
            if (*std::ranges::max_element(sums) < kLeastProduct)
                continue;
            for (std::size_t lane = 0; lane < lanes; ++lane) {
                if (sums[lane] >= kLeastProduct)
                    look(one, first + lane);
            }
        }
    }
    for (std::vector<Near>& all : found)
        keepNearest(all, most);
    return found;
}

} // namespace orlen

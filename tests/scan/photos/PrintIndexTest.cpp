#include "scan/photos/PrintIndex.h"

#include "platform/values/WideLanes.h"
#include "scan/photos/PrintDistance.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <random>

namespace orlen {

namespace {

using Direction = PrintIndex::Direction;

/// Around some centres, at all distances; the later numbers are small, as in prints.
std::vector<Direction> directions(std::size_t count, std::size_t centres)
{
    std::mt19937 random(1);
    std::normal_distribution<float> normal;
    const auto drawn = [&] {
        FeaturePrint::Vector vector{};
        for (std::size_t i = 0; i < vector.size(); ++i)
            vector[i] = normal(random) / std::sqrt(static_cast<float>(i + 4));
        return vector;
    };
    std::vector<FeaturePrint::Vector> middles(centres);
    std::ranges::generate(middles, drawn);
    std::vector<Direction> all(count);
    for (std::size_t i = 0; i < count; ++i) {
        FeaturePrint::Vector vector = drawn();
        const float share = static_cast<float>(i % 100) / 50;
        for (std::size_t n = 0; n < vector.size(); ++n)
            vector[n] += share * middles[i % centres][n];
        all[i] = FeaturePrint::directionOf(vector);
    }
    return all;
}

std::vector<PrintIndex::Near> byLooking(const std::vector<Direction>& all, const Direction& one,
                                        std::size_t most)
{
    std::vector<PrintIndex::Near> found;
    for (std::size_t i = 0; i < all.size(); ++i) {
        if (const auto coarse = coarseDistance(all[i], one))
            found.push_back({*coarse, i});
    }
    std::ranges::stable_sort(found, {}, &PrintIndex::Near::coarse);
    found.resize(std::min(found.size(), most));
    return found;
}

} // namespace

TEST(PrintIndexTest, findsWhatLookingAtAllFinds)
{
    std::vector<Direction> all = directions(1'003, 7);
    all[10] = {}; // no direction at all
    Direction single{};
    single[127] = -127; // nothing in the sketch but the length of the rest
    all[11] = all[12] = single;
    PrintIndex index;
    for (const Direction& direction : all)
        index.add(direction);
    for (const std::size_t most : {1U, 8U, 10'000U}) {
        const auto found = index.near(all, most);
        ASSERT_EQ(found.size(), all.size());
        std::size_t sum = 0;
        for (std::size_t i = 0; i < all.size(); ++i) {
            ASSERT_EQ(found[i], byLooking(all, all[i], most)) << i;
            sum += found[i].size();
        }
        EXPECT_TRUE(found[10].empty());
        EXPECT_GT(sum, std::min<std::size_t>(most, 20) * all.size() / 2) << "there is something to find";
    }
    EXPECT_TRUE(PrintIndex().near(all, 8)[0].empty());
    const auto found = index.near(all, 8);
    for (const WideLanes::Width lanes : {WideLanes::Width::widest, WideLanes::Width::wide}) {
        const WideLanes::Without without(lanes);
        EXPECT_EQ(index.near(all, 8), found);
    }
}

} // namespace orlen

#include "tools/Treemap.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <numeric>
#include <random>

namespace orlen {

namespace {

using testing::Each;
using testing::IsEmpty;
using testing::SizeIs;
using Treemap::Rect;

std::vector<TreeNode> nodesOfSizes(const std::vector<std::int64_t>& sizes)
{
    std::vector<TreeNode> nodes;
    nodes.reserve(sizes.size());
    for (const std::int64_t size : sizes)
        nodes.push_back({"x", "/x", size, false, false});
    return nodes;
}

void expectNear(const std::vector<Rect>& rects, const std::vector<Rect>& expected)
{
    ASSERT_THAT(rects, SizeIs(expected.size()));
    for (std::size_t i = 0; i < rects.size(); ++i) {
        SCOPED_TRACE(i);
        EXPECT_NEAR(rects[i].x, expected[i].x, 1e-9);
        EXPECT_NEAR(rects[i].y, expected[i].y, 1e-9);
        EXPECT_NEAR(rects[i].width, expected[i].width, 1e-9);
        EXPECT_NEAR(rects[i].height, expected[i].height, 1e-9);
    }
}

} // namespace

TEST(TreemapTest, rowsGrowWhileTheyGetMoreSquare)
{
    struct Case {
        const char* name;
        std::vector<double> values;
        Rect area;
        std::vector<Rect> expected;
    };
    const Case cases[] = {
        {"one value fills the area", {7}, {3, 4, 20, 10}, {{3, 4, 20, 10}}},
        {"a worse ratio ends the row",
         {6, 6, 4, 3, 2, 2, 1},
         {0, 0, 6, 4},
         {{0, 0, 3, 2},
          {0, 2, 3, 2},
          {3, 0, 12.0 / 7, 7.0 / 3},
          {3 + 12.0 / 7, 0, 9.0 / 7, 7.0 / 3},
          {3, 7.0 / 3, 6.0 / 5, 5.0 / 3},
          {4.2, 7.0 / 3, 6.0 / 5, 5.0 / 3},
          {5.4, 7.0 / 3, 3.0 / 5, 5.0 / 3}}},
        // Alone the first is 4 x 2, both together are two of 2 x 4: no worse, so the row goes on.
        {"an equal ratio does not", {8, 8}, {0, 0, 4, 4}, {{0, 0, 4, 2}, {0, 2, 4, 2}}},
        {"a high area is cut from the top", {3, 1}, {1, 1, 2, 8}, {{1, 1, 2, 6}, {1, 7, 2, 2}}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        expectNear(Treemap::layout(c.values, c.area), c.expected);
    }
}

TEST(TreemapTest, areasAreProportionalAndFillTheAreaWithoutOverlap)
{
    std::mt19937 random(7);
    std::vector<double> values(61);
    for (double& value : values)
        value = std::exp(std::uniform_real_distribution(0.0, 18.0)(random));
    std::sort(values.begin(), values.end(), std::greater());
    const Rect area{5, 7, 900, 611};
    const double sum = std::accumulate(values.begin(), values.end(), 0.0);
    const std::vector<Rect> rects = Treemap::layout(values, area);
    ASSERT_THAT(rects, SizeIs(values.size()));
    for (std::size_t i = 0; i < rects.size(); ++i) {
        const Rect& a = rects[i];
        EXPECT_NEAR(a.width * a.height / (900 * 611), values[i] / sum, 1e-9);
        EXPECT_TRUE(a.x >= 5 && a.y >= 7 && a.x + a.width < 905.001 && a.y + a.height < 618.001);
        for (std::size_t j = i + 1; j < rects.size(); ++j) {
            const Rect& b = rects[j];
            const double width = std::min(a.x + a.width, b.x + b.width) - std::max(a.x, b.x);
            const double height = std::min(a.y + a.height, b.y + b.height) - std::max(a.y, b.y);
            EXPECT_TRUE(width < 1e-6 || height < 1e-6) << i << " and " << j;
        }
    }
}

TEST(TreemapTest, valuesTooSmallForTheAreaStayFinite)
{
    for (const std::vector<double>& values :
         {std::vector<double>{1e18, 1e18, 1, 1}, {9e18, 1, 1, 1}, {5, 0, 0}, {3, 3, 1e-300}}) {
        for (const Rect& rect : Treemap::layout(values, {0, 0, 333.3, 200.1})) {
            EXPECT_TRUE(std::isfinite(rect.x) && std::isfinite(rect.y));
            EXPECT_TRUE(std::isfinite(rect.width) && std::isfinite(rect.height));
        }
    }
}

TEST(TreemapTest, anAreaOfOnePointHoldsNothing)
{
    EXPECT_THAT(Treemap::layout(std::vector<double>{}, {0, 0, 50, 50}), IsEmpty());
    for (const Rect& area : {Rect{9, 9, 1, 50}, Rect{9, 9, 50, 1}, Rect{9, 9, -3, 50}, Rect{9, 9, 0, 0}})
        EXPECT_THAT(Treemap::layout(std::vector{2.0, 1.0}, area), testing::AllOf(SizeIs(2), Each(Rect{})));
    EXPECT_THAT(Treemap::layout(std::vector{0.0, 0.0}, {9, 9, 50, 50}), Each(Rect{}));
    EXPECT_EQ(Treemap::layout(std::vector{2.0}, {9, 9, 1.5, 50}).front(), (Rect{9, 9, 1.5, 50}));
}

TEST(TreemapTest, aPointHitsTheNodeBelowIt)
{
    // The map is 100 x 100, and each of two equal nodes takes one half of it.
    const std::vector<TreeNode> nodes = nodesOfSizes({50, 50});
    struct Case {
        const char* name;
        Treemap::Point point;
        Treemap::Size view;
        std::optional<std::size_t> expected;
    };
    constexpr Case cases[] = {
        {"the corner", {0, 0}, {112, 112}, 0},
        {"just above the border", {0, 49.99}, {112, 112}, 0},
        {"on the border", {0, 50}, {112, 112}, 1},
        {"the last point", {99.99, 99.99}, {112, 112}, 1},
        {"beside the map", {100, 10}, {112, 112}, std::nullopt},
        {"outside", {-0.01, 10}, {112, 112}, std::nullopt},
        {"a view too low", {0, 0}, {112, 13}, std::nullopt},
        {"a view just high enough", {0, 0}, {112, 14}, 0},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Treemap::hit(nodes, c.point, c.view), c.expected);
    }
    EXPECT_EQ(Treemap::hit({}, {5, 5}, {112, 112}), std::nullopt);
}

} // namespace orlen

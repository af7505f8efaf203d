#include "window/diskmap/TileStep.h"

#include <gtest/gtest.h>

#include <array>

namespace orlen {

namespace {

/// A tall tile on the left, two on the right, of which the lower one is split into two:
///
///     0 0 1 1
///     0 0 2 3
constexpr std::array kTiles{Treemap::Rect{0, 0, 100, 100}, Treemap::Rect{100, 0, 100, 50},
                            Treemap::Rect{100, 50, 50, 50}, Treemap::Rect{150, 50, 50, 50}};

} // namespace

TEST(TileStepTest, leadsToTheNearestTileOnThatSide)
{
    using enum TileStep::Direction;
    struct Case {
        const char* name;
        std::size_t from;
        TileStep::Direction direction;
        std::optional<std::size_t> to;
    };
    const Case cases[] = {
        {"right, where two tiles are level to a point", 0, right, 1},
        {"left from the upper tile", 1, left, 0},
        {"left to the neighbour, not beyond it", 3, left, 2},
        {"left from the lower one", 2, left, 0},
        {"down, to the first of two that are equally near", 1, down, 2},
        {"up from aslant", 3, up, 1},
        {"not beyond the right edge", 3, right, std::nullopt},
        {"not beyond the left edge", 0, left, std::nullopt},
        {"not beyond the upper edge", 0, up, std::nullopt},
        {"not beyond the lower edge", 2, down, std::nullopt},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(TileStep::neighbour(kTiles, c.from, c.direction), c.to);
    }
}

TEST(TileStepTest, reachesEveryTileOfAMapByArrowKeys)
{
    std::vector<double> values;
    for (int i = 0; i < 61; ++i)
        values.push_back(1000.0 / (1 + i * i));
    const auto rects = Treemap::layout(values, {0, 0, 800, 500});
    std::vector<bool> isReached(rects.size());
    std::vector<std::size_t> open{0};
    while (!open.empty()) {
        const std::size_t from = open.back();
        open.pop_back();
        if (isReached[from])
            continue;
        isReached[from] = true;
        using enum TileStep::Direction;
        for (const auto direction : {left, right, up, down}) {
            if (const auto to = TileStep::neighbour(rects, from, direction))
                open.push_back(*to);
        }
    }
    for (std::size_t i = 0; i < isReached.size(); ++i)
        EXPECT_TRUE(isReached[i]) << "tile " << i;
}

} // namespace orlen

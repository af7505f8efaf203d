#include "platform/images/TileCode.h"

#include <gtest/gtest.h>

#include <cmath>
#include <functional>
#include <random>

namespace orlen {

namespace {

TileCode::Tile tileOf(const std::function<int(std::size_t x, std::size_t y)>& level)
{
    TileCode::Tile tile{};
    for (std::size_t i = 0; i < tile.size(); ++i)
        tile[i] = static_cast<std::uint8_t>(level(i % TileCode::kSide, i / TileCode::kSide));
    return tile;
}

/// Root of the mean square.
double apart(const TileCode::Tile& one, const TileCode::Tile& other)
{
    double squares = 0;
    for (std::size_t i = 0; i < one.size(); ++i)
        squares += (one[i] - other[i]) * (one[i] - other[i]);
    return std::sqrt(squares / static_cast<double>(one.size()));
}

} // namespace

TEST(TileCodeTest, anyTileFitsAndKeepsItsStructure)
{
    std::mt19937 random(1);
    struct Case {
        const char* name;
        TileCode::Tile tile;
        double mostLost; ///< levels
    };
    const Case cases[] = {
        {"plain", tileOf([](auto, auto) { return 128; }), 0},
        {"waves", tileOf([](std::size_t x, std::size_t y) {
             return 128 + std::lround(40 * std::sin(0.4 * static_cast<double>(x + 2 * y)));
         }),
         2},
        {"squares", tileOf([](std::size_t x, std::size_t y) { return (x / 5 + y / 7) % 2 == 0 ? 0 : 255; }),
         30},
        {"one bright pixel", tileOf([](std::size_t x, std::size_t y) { return x + y == 0 ? 255 : 128; }), 1},
        {"some noise", tileOf([&](auto, auto) { return 123 + random() % 11; }), 2},
        // More than there is room for: half of it stays.
        {"nothing but noise", tileOf([&](auto, auto) { return random() % 256; }), 40},
        {"black and white noise", tileOf([&](auto, auto) { return random() % 2 * 255; }), 65},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const std::vector<std::uint8_t> bytes = TileCode::packed(c.tile);
        EXPECT_FALSE(bytes.empty());
        EXPECT_LE(bytes.size(), TileCode::kMostBytes);
        EXPECT_LE(apart(TileCode::unpacked(bytes), c.tile), c.mostLost);
    }
}

TEST(TileCodeTest, anyBytesGiveSomeTile)
{
    std::mt19937 random(1);
    for (std::size_t length : {0U, 1U, 3U, 40U, 5'000U}) {
        for (const unsigned most : {1U, 256U}) {
            std::vector<std::uint8_t> bytes(length);
            for (std::uint8_t& byte : bytes)
                byte = static_cast<std::uint8_t>(random() % most);
            const TileCode::Tile tile = TileCode::unpacked(bytes);
            EXPECT_EQ(tile, TileCode::unpacked(bytes));
        }
    }
}

} // namespace orlen

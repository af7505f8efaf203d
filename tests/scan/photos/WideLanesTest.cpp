#include "platform/values/WideLanes.h"

#include "scan/photos/FineCheck.h"
#include "scan/photos/QuickLook.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <cstddef>
#include <cstdint>
#include <optional>
#include <random>
#include <utility>
#include <vector>

namespace orlen {

namespace {

using Tile = FeaturePrint::Tile;

/// Waves in all directions, some noise, and an even corner.
Tile drawnTile(std::mt19937& random)
{
    constexpr std::size_t kSide = FeaturePrint::kTileSide;
    const auto some = [&](unsigned most) { return static_cast<float>(random() % most) / 100; };
    Tile tile{};
    const float right = some(90);
    const float down = some(90);
    for (std::size_t i = 0; i < tile.size(); ++i) {
        const auto x = static_cast<float>(i % kSide);
        const std::size_t row = i / kSide;
        const auto y = static_cast<float>(row);
        const bool isEven = x < 30 && y < 30;
        const float level =
            isEven ? 0 : 60 * std::sin(right * x + down * y + std::sin(x * y / 300)) + 30 * some(100);
        tile[i] = static_cast<std::uint8_t>(128 + level);
    }
    return tile;
}

/// Turned a little, moved, and with some noise.
Tile changed(const Tile& tile, std::mt19937& random)
{
    constexpr int kSide = FeaturePrint::kTileSide;
    const float turn = static_cast<float>(random() % 9) / 100 - 0.04F;
    const int move = static_cast<int>(random() % 13) - 6;
    Tile result{};
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x) {
            const int fromX = std::clamp(
                static_cast<int>(static_cast<float>(x) + turn * static_cast<float>(y)) + move, 0, kSide - 1);
            const int fromY = std::clamp(
                static_cast<int>(static_cast<float>(y) - turn * static_cast<float>(x)) - move, 0, kSide - 1);
            const auto from = static_cast<std::size_t>(fromY) * kSide + static_cast<std::size_t>(fromX);
            result[static_cast<std::size_t>(y) * kSide + static_cast<std::size_t>(x)] =
                static_cast<std::uint8_t>(std::min<unsigned>(tile[from] + random() % 4, 255));
        }
    }
    return result;
}

struct Comparison {
    Tile unpacked{};
    std::optional<float> agreement;
    float hope = 0;
    friend bool operator==(const Comparison&, const Comparison&) = default;
};

Comparison compared(const Tile& one, const Tile& other)
{
    const PictureOutline ofOne(one);
    const PictureOutline ofOther(other);
    return {TileCode::unpacked(TileCode::packed(one)), FineCheck::agreement(one, other),
            QuickLook::hope(QuickLook(ofOne), QuickLook(ofOther))};
}

} // namespace

TEST(WideLanesTest, comparingComesToTheSameBitsWithoutThem)
{
    std::mt19937 random(1); // NOLINT(cert-msc51-cpp): the same every time
    std::vector<std::pair<Tile, Tile>> pairs;
    constexpr std::size_t kPairs = 9;
    for (std::size_t i = 0; i < kPairs; ++i) {
        const Tile tile = drawnTile(random);
        pairs.emplace_back(tile, i % 3 == 0 ? drawnTile(random) : changed(tile, random));
    }
    std::size_t alike = 0;
    for (const auto& [one, other] : pairs) {
        const Comparison found = compared(one, other);
        alike += found.agreement.value_or(0) > 0.5F ? 1 : 0;
        for (const WideLanes::Width lanes : {WideLanes::Width::widest, WideLanes::Width::wide}) {
            const WideLanes::Without without(lanes);
            EXPECT_EQ(compared(one, other), found);
        }
    }
    EXPECT_GT(alike, kPairs / 4) << "all stages of comparing are gone through";
    EXPECT_LT(alike, kPairs);
}

} // namespace orlen

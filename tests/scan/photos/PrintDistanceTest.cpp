#include "scan/photos/PrintDistance.h"

#include "platform/images/FeaturePrint.h"
#include "scan/photos/QuickLook.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <functional>
#include <numbers>
#include <random>
#include <vector>

namespace orlen::PrintDistanceTests {
namespace {

constexpr float kNearDuplicate = 0.32F;
constexpr int kSide = FeaturePrint::kTileSide;
using Structure = std::function<double(double x, double y)>;

std::size_t at(int x, int y)
{
    return static_cast<std::size_t>(y) * kSide + static_cast<std::size_t>(x);
}

/// Waves of seeded lengths and directions: structure everywhere, at any point between the pixels too.
Structure waves(unsigned seed)
{
    struct Wave {
        double right, down, phase;
    };
    std::mt19937 random(seed);
    std::uniform_real_distribution<double> pace(-0.9, 0.9);
    std::vector<Wave> all(24);
    for (Wave& wave : all)
        wave = {pace(random), pace(random), 4 * pace(random)};
    return [all](double x, double y) {
        double value = 0;
        for (const Wave& wave : all)
            value += 5 * std::sin(wave.right * x + wave.down * y + wave.phase);
        return value;
    };
}

/// Lines of small dark strokes; the lines are the same in every text, the strokes are not.
Structure text(unsigned seed)
{
    std::mt19937 random(seed);
    std::vector<double> strokes(static_cast<std::size_t>(kSide) * kSide);
    for (int y = 4; y + 3 < kSide; y += 6) {
        for (int x = 4; x < kSide - 4; ++x) {
            const double ink = random() % 2 == 0 ? -60 : 20;
            for (int row = y; row < y + 3; ++row)
                strokes[at(x, row)] = ink;
        }
    }
    return [strokes](double x, double y) {
        const auto within = [](double value) { return std::clamp(static_cast<int>(value), 0, kSide - 1); };
        return strokes[at(within(x), within(y))];
    };
}

Structure scaled(const Structure& structure, double contrast)
{
    return [=](double x, double y) { return contrast * structure(x, y); };
}

Structure halfAndHalf(const Structure& upper, const Structure& lower)
{
    return [=](double x, double y) { return (y < kSide / 2.0 ? upper : lower)(x, y); };
}

Structure moved(const Structure& structure, double right, double down)
{
    return [=](double x, double y) { return structure(x - right, y - down); };
}

Structure turned(const Structure& structure, double degrees, double scale)
{
    const double cosine = scale * std::cos(degrees * std::numbers::pi / 180);
    const double sine = scale * std::sin(degrees * std::numbers::pi / 180);
    constexpr double kMiddle = kSide / 2.0;
    return [=](double x, double y) {
        const double right = x - kMiddle;
        const double down = y - kMiddle;
        return structure(kMiddle + cosine * right - sine * down, kMiddle + sine * right + cosine * down);
    };
}

FeaturePrint::Vector direction(double radians)
{
    FeaturePrint::Vector vector{};
    vector[0] = static_cast<float>(std::cos(radians));
    vector[127] = static_cast<float>(std::sin(radians));
    return vector;
}

FeaturePrint printOf(const Structure& structure, const FeaturePrint::Vector& vector = direction(0))
{
    FeaturePrint::Tile tile{};
    for (int y = 0; y < kSide; ++y) {
        for (int x = 0; x < kSide; ++x)
            tile[at(x, y)] = static_cast<std::uint8_t>(std::clamp(128 + structure(x, y), 0.0, 255.0));
    }
    return {vector, tile};
}

Structure plain()
{
    return [](double, double) { return 0.0; };
}

/// The vectors that are `apart` from each other by a straight line.
float distanceApart(const Structure& structure, double apart)
{
    return distance(printOf(structure), printOf(structure, direction(2 * std::asin(apart / 2))));
}

TEST(PrintDistanceTest, fineStructureDecidesWhereTheLayoutIsTheSame)
{
    struct Case {
        const char* name;
        Structure one;
        Structure other;
        bool isNearDuplicate;
    };
    const Case cases[] = {
        {"the same", waves(1), waves(1), true},
        {"less contrast", waves(1), scaled(waves(1), 0.4), true},
        {"shifted", waves(1), moved(waves(1), 5, -4), true},
        {"turned", waves(1), turned(waves(1), 2, 1), true},
        {"cropped", waves(1), turned(waves(1), 0, 0.92), true},
        {"other structure", waves(1), waves(2), false},
        {"shifted out of reach", waves(1), moved(waves(1), 30, 25), false},
        {"its negative", waves(1), scaled(waves(1), -1), false},
        {"structure and none", waves(1), plain(), false},
        {"one text", text(1), text(1), true},
        {"one text, shifted", text(1), moved(text(1), 2, 3), true},
        {"another text in the same lines", text(1), text(2), false},
        {"half of the text replaced", text(1), halfAndHalf(text(1), text(2)), false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const FeaturePrint one = printOf(c.one);
        const FeaturePrint other = printOf(c.other);
        EXPECT_EQ(distance(one, other) < kNearDuplicate, c.isNearDuplicate) << distance(one, other);
        EXPECT_EQ(distance(one, other), distance(other, one));
    }
}

TEST(PrintDistanceTest, aQuickLookLeavesHopeForEveryChangedCopy)
{
    const auto isHopeful = [](const FeaturePrint& one, const FeaturePrint& other) {
        const PictureOutline first(one.tile());
        const PictureOutline second(other.tile());
        const float hope = QuickLook::hope(QuickLook(first), QuickLook(second));
        EXPECT_EQ(hope, QuickLook::hope(QuickLook(second), QuickLook(first)));
        return hope > 0;
    };
    for (unsigned seed = 1; seed <= 6; ++seed) {
        const Structure pictures[] = {waves(seed), text(seed)};
        for (const Structure& picture : pictures) {
            const FeaturePrint print = printOf(picture);
            for (const double scale : {0.92, 1.0, 1.08}) {
                for (const double degrees : {-2.0, 0.0, 1.0}) {
                    const Structure changed =
                        moved(scaled(turned(picture, degrees, scale), 0.7), 2.5 * degrees, 3);
                    EXPECT_TRUE(isHopeful(print, printOf(changed))) << seed << ' ' << scale << ' ' << degrees;
                }
            }
            EXPECT_FALSE(isHopeful(print, printOf(waves(seed + 20)))) << seed;
        }
    }
}

TEST(PrintDistanceTest, sameStructureInAnotherLayoutIsNoNearDuplicate)
{
    EXPECT_EQ(distanceApart(waves(1), 0), 0);
    EXPECT_LT(distanceApart(waves(1), 0.79), kNearDuplicate);
    EXPECT_GE(distanceApart(waves(1), 0.81), kNearDuplicate);
    EXPECT_GT(distanceApart(waves(1), 2), distanceApart(waves(1), 1));
}

TEST(PrintDistanceTest, withoutFineStructureTheLayoutMustAgreeMoreClosely)
{
    EXPECT_EQ(distanceApart(plain(), 0), 0);
    EXPECT_LT(distanceApart(plain(), 0.39), kNearDuplicate);
    EXPECT_GE(distanceApart(plain(), 0.41), kNearDuplicate);
}

TEST(PrintDistanceTest, extremeTilesDoNotOverflow)
{
    const Structure squares = [](double x, double y) {
        return (static_cast<int>(x) / 8 + static_cast<int>(y) / 8) % 2 == 0 ? -128.0 : 127.0;
    };
    const Structure black = [](double, double) { return -128.0; };
    EXPECT_LT(distance(printOf(squares), printOf(scaled(squares, 0.9))), kNearDuplicate);
    EXPECT_GE(distance(printOf(squares), printOf(black)), kNearDuplicate);
}

} // namespace
} // namespace orlen::PrintDistanceTests

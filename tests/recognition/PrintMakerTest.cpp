#include "recognition/PrintMaker.h"

#include "recognition/Scenes.h"
#include "scan/photos/PrintDistance.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

using namespace Scenes;

constexpr float kNearDuplicate = 0.32F;

float apart(const RgbImage& one, const RgbImage& other)
{
    return distance(PrintMaker::printOf(one).value(), PrintMaker::printOf(other).value());
}

RgbImage photo(const Scene& scene)
{
    return painted(scene, 256, 192);
}

TEST(PrintMakerTest, changedCopiesAreNearDuplicates)
{
    for (const unsigned seed : {1U, 2U}) {
        const Scene scene = spots(seed);
        const RgbImage original = photo(scene);
        struct Case {
            const char* name;
            RgbImage copy;
        };
        const Case cases[] = {
            {"the same", original},
            {"smaller", painted(scene, 160, 120)},
            {"of another shape", painted(scene, 300, 260)},
            {"cropped by 5 %", photo(cropped(scene, 0.03, 0.01, 0.95))},
            {"cropped by 10 %", photo(cropped(scene, 0.04, 0.07, 0.90))},
            {"shifted", photo(cropped(scene, 0.03, -0.02, 1))},
            {"turned", photo(turned(scene, 2))},
            {"brighter", photo(lit(scene, {1.17, 1.17, 1.17}, 0))},
            {"darker and noisy", photo(lit(scene, {0.85, 0.85, 0.85}, 6))},
            {"warmer", photo(lit(scene, {1.12, 1, 0.9}, 0))},
        };
        for (const Case& c : cases) {
            SCOPED_TRACE(c.name);
            EXPECT_LT(apart(original, c.copy), kNearDuplicate) << "seed " << seed;
        }
    }
}

TEST(PrintMakerTest, differentPicturesAreNot)
{
    for (unsigned seed = 1; seed < 6; ++seed)
        EXPECT_GE(apart(photo(spots(seed)), photo(spots(seed + 1))), kNearDuplicate) << seed;
}

TEST(PrintMakerTest, pagesOfOneLayoutAreDifferentButOnePageIsItself)
{
    const RgbImage one = painted(page(1), 384, 512);
    EXPECT_GE(apart(one, painted(page(2), 384, 512)), kNearDuplicate);
    EXPECT_LT(apart(one, painted(page(1), 288, 384)), kNearDuplicate);
    EXPECT_LT(apart(one, painted(lit(page(1), {0.9, 0.9, 0.9}, 10), 384, 512)), kNearDuplicate);
}

TEST(PrintMakerTest, picturesWithoutStructureHaveNone)
{
    EXPECT_FALSE(PrintMaker::printOf({}));
    EXPECT_FALSE(PrintMaker::printOf(photo(plain({200, 30, 30}))));
    EXPECT_FALSE(PrintMaker::printOf(photo(lit(plain({128, 128, 128}), {1, 1, 1}, 2))));
    EXPECT_TRUE(PrintMaker::printOf(photo([](double x, double) {
        return Colour{255 * x, 255 * x, 255 * x};
    })));
}

TEST(PrintMakerTest, anySizeGivesADirection)
{
    const std::pair<int, int> sizes[] = {{1, 2}, {2, 1}, {5, 3}, {127, 129}, {512, 4}, {3, 512}, {512, 512}};
    for (const auto& [width, height] : sizes) {
        const Scene halves = [](double x, double y) {
            return x + y < 1 ? Colour{0, 0, 0} : Colour{255, 255, 255};
        };
        const auto print = PrintMaker::printOf(painted(halves, width, height));
        ASSERT_TRUE(print) << width << " x " << height;
        EXPECT_NE(print->direction(), FeaturePrint::Direction{});
    }
}

} // namespace
} // namespace orlen

#include "scan/photos/PageCheck.h"

#include "recognition/Scenes.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

using namespace Scenes;

/// A page on which one line of a few words is another one.
Scene pageWithSum(unsigned page, unsigned sum)
{
    return [paper = Scenes::page(page), other = Scenes::page(sum)](double x, double y) {
        const bool isSum = x > 0.6 && x < 0.8 && y > 0.6 && y < 0.66;
        return isSum ? other(x, y) : paper(x, y);
    };
}

RgbImage scanned(const Scene& scene)
{
    return painted(scene, 560, 720);
}

TEST(PageCheckTest, aCopyIsTheSamePageHoweverItWasMade)
{
    const Scene page = pageWithSum(1, 2);
    const RgbImage original = scanned(page);
    struct Case {
        const char* name;
        RgbImage copy;
    };
    const Case cases[] = {
        {"the same", original},
        {"smaller", painted(page, 380, 490)},
        {"of another shape", painted(page, 600, 700)},
        {"cropped", scanned(cropped(page, 0.03, 0.05, 0.92))},
        {"shifted", scanned(cropped(page, 0.02, -0.02, 1))},
        {"turned", scanned(turned(page, 1.5))},
        {"darker and noisy", scanned(lit(page, {0.8, 0.8, 0.8}, 20))},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_TRUE(PageCheck::isSamePage(original, c.copy));
        EXPECT_TRUE(PageCheck::isSamePage(c.copy, original));
    }
}

TEST(PageCheckTest, anotherSumIsAnotherPage)
{
    const RgbImage original = scanned(pageWithSum(1, 2));
    const Scene next = pageWithSum(1, 3);
    struct Case {
        const char* name;
        RgbImage page;
    };
    const Case cases[] = {
        {"scanned alike", scanned(next)},
        {"smaller", painted(next, 380, 490)},
        {"cropped", scanned(cropped(next, 0.03, 0.05, 0.92))},
        {"turned", scanned(turned(next, 1.5))},
        {"noisy", scanned(lit(next, {0.9, 0.9, 0.9}, 20))},
        {"no page at all", scanned(spots(1))},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_FALSE(PageCheck::isSamePage(original, c.page));
        EXPECT_FALSE(PageCheck::isSamePage(c.page, original));
    }
}

TEST(PageCheckTest, whereNothingIsWrittenNothingTellsApart)
{
    const RgbImage white = scanned(plain({255, 255, 255}));
    EXPECT_TRUE(PageCheck::isSamePage(white, scanned(plain({250, 240, 230}))));
    EXPECT_TRUE(PageCheck::isSamePage(painted(page(1), 20, 30), painted(page(2), 20, 30)))
        << "too small to read";
    EXPECT_TRUE(PageCheck::isSamePage({}, {}));
}

} // namespace
} // namespace orlen

#include "recognition/LineDirection.h"

#include "recognition/PixelDrawing.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

RgbImage writtenPage()
{
    RgbImage image = PixelDrawing::plain(380, 512, {255, 255, 255});
    PixelDrawing::text(image, 40, 40, 30, 7, {40, 40, 40});
    return image;
}

TEST(LineDirectionTest, pageOnItsSideIsSideways)
{
    RgbImage image = writtenPage();
    for (const bool expected : {false, true, false, true}) {
        EXPECT_EQ(LineDirection::isSideways(image), expected);
        image = LineDirection::turned(image);
    }
}

TEST(LineDirectionTest, edgesOfASheetDoNotHideHowItLies)
{
    RgbImage image = PixelDrawing::plain(512, 512, {20, 20, 20});
    PixelDrawing::fill(image, 180, 20, 150, 470, {255, 255, 255});
    for (int line = 0; line < 20; ++line) // a narrow receipt: a word and a price in each line
        for (const int left : {200, 280})
            PixelDrawing::word(image, left + line * 5 % 9, 40 + line * 22, 4 + line % 3, 8, {60, 60, 60});
    for (const bool expected : {false, true, false, true}) {
        EXPECT_EQ(LineDirection::isSideways(image), expected);
        image = LineDirection::turned(image);
    }
}

TEST(LineDirectionTest, fourQuarterTurnsLeadBack)
{
    RgbImage strip = PixelDrawing::plain(3, 1, {0, 0, 0});
    PixelDrawing::fill(strip, 0, 0, 1, 1, {255, 0, 0});
    const RgbImage once = LineDirection::turned(strip);
    EXPECT_EQ(once.width, 1);
    EXPECT_EQ(once.height, 3);
    EXPECT_EQ(once.pixels.front(), 255); // what was left is on top
    const RgbImage back = LineDirection::turned(LineDirection::turned(LineDirection::turned(once)));
    EXPECT_EQ(back.pixels, strip.pixels);
}

TEST(LineDirectionTest, whatHasNoLinesIsNotSideways)
{
    EXPECT_FALSE(LineDirection::isSideways(RgbImage{}));
    EXPECT_FALSE(LineDirection::isSideways(PixelDrawing::plain(8, 300, {9, 9, 9})));
    EXPECT_FALSE(LineDirection::isSideways(PixelDrawing::plain(300, 300, {255, 255, 255})));
}

} // namespace
} // namespace orlen

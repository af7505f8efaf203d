#include "recognition/StatusBar.h"

#include "recognition/LineDirection.h"
#include "recognition/PixelDrawing.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

/// A photo as high as a phone, with the time and three signs along its top.
RgbImage phone(PixelDrawing::Colour ink = {255, 255, 255})
{
    RgbImage image = PixelDrawing::scene(240, 512);
    PixelDrawing::word(image, 12, 7, 4, 9, ink);
    for (int i = 0; i < 3; ++i)
        PixelDrawing::fill(image, 186 + i * 16, 8, 10, 8, ink);
    return image;
}

TEST(StatusBarTest, timeAndSignsAtBothEndsAreABar)
{
    EXPECT_TRUE(StatusBar::isOn(phone()));
    EXPECT_TRUE(StatusBar::isOn(phone({0, 0, 0})));
}

TEST(StatusBarTest, otherSpecksAreNone)
{
    RgbImage onlyTime = PixelDrawing::scene(240, 512);
    PixelDrawing::word(onlyTime, 12, 7, 4, 9, {255, 255, 255});
    RgbImage line = PixelDrawing::scene(240, 512); // a heading
    PixelDrawing::word(line, 10, 7, 30, 9, {255, 255, 255});
    RgbImage slope = PixelDrawing::scene(240, 512);
    for (int i = 0; i < 10; ++i)
        PixelDrawing::fill(slope, 10 + i * 22, 1 + i * 2, 8, 8, {255, 255, 255});
    RgbImage wide = PixelDrawing::scene(512, 384);
    PixelDrawing::word(wide, 12, 7, 4, 9, {255, 255, 255});
    for (int i = 0; i < 3; ++i)
        PixelDrawing::fill(wide, 440 + i * 16, 8, 10, 8, {255, 255, 255});
    const struct {
        const char* name;
        RgbImage image;
    } cases[] = {{"nothing", PixelDrawing::scene(240, 512)},
                 {"no signs", onlyTime},
                 {"a line from end to end", line},
                 {"not on one line", slope},
                 {"no phone", wide},
                 {"upside down", LineDirection::turned(LineDirection::turned(phone()))},
                 {"tiny", PixelDrawing::plain(2, 4, {0, 0, 0})},
                 {"none", {}}};
    for (const auto& c : cases)
        EXPECT_FALSE(StatusBar::isOn(c.image)) << c.name;
}

} // namespace
} // namespace orlen

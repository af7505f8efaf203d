#include "scan/photos/SamePicture.h"

#include "recognition/PrintMaker.h"
#include "recognition/Scenes.h"
#include "scan/photos/KeeperChoice.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orlen {
namespace {

using namespace Scenes;

PhotoInfo photo(const Scene& scene, double sharpness)
{
    const RgbImage image = painted(scene, 400, 300);
    PhotoInfo info;
    info.print = PrintMaker::printOf(image);
    info.sharpness = sharpness;
    info.width = image.width;
    info.height = image.height;
    return info;
}

/// Another scene over a part of it.
Scene covered(const Scene& scene, const Scene& over, double left, double top, double right, double bottom)
{
    return [=](double x, double y) {
        const bool isOver = x > left && x < right && y > top && y < bottom;
        return isOver ? over(x, y) : scene(x, y);
    };
}

/// Strokes as large as letters of a caption.
Scene letters(unsigned seed)
{
    return cropped(page(seed), 0.1, 0.1, 0.3);
}

/// Letters in white with a black rim below.
Scene written(const Scene& scene, double left, double top, double right, double bottom)
{
    return [=, ink = letters(3)](double x, double y) {
        const bool isThere = x > left && x < right && y > top && y < bottom;
        if (isThere && ink(x, y).red < 128)
            return Colour{255, 255, 255};
        if (isThere && ink(x, y - 0.01).red < 128)
            return Colour{0, 0, 0};
        return scene(x, y);
    };
}

/// A yellow face with black eyes.
Colour face(double x, double y)
{
    const auto isWithin = [&](double right, double down, double radius) {
        return std::hypot(x - right, y - down) < radius;
    };
    if (isWithin(0.64, 0.33, 0.025) || isWithin(0.72, 0.33, 0.025) || isWithin(0.68, 0.43, 0.04))
        return {20, 20, 20};
    return {250, 210, 40};
}

} // namespace

TEST(SamePictureTest, whatIsDrawnOverAPictureIsNoReasonToKeepIt)
{
    const Scene scene = spots(4);
    const PhotoInfo plain = photo(scene, 50);
    struct Case {
        const char* name;
        Scene drawn;
    };
    const Case cases[] = {
        {"a caption bar", covered(scene, letters(1), 0, 0.82, 1, 1)},
        {"words over the picture", written(scene, 0.15, 0.45, 0.85, 0.6)},
        {"two captions", written(written(scene, 0.1, 0.06, 0.9, 0.18), 0.1, 0.82, 0.9, 0.94)},
        {"a sticker", covered(scene, face, 0.6, 0.25, 0.76, 0.5)},
        {"a signature", written(scene, 0.75, 0.9, 0.95, 0.96)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const PhotoInfo drawn = photo(c.drawn, 90);
        EXPECT_FALSE(SamePicture::isCopy(drawn, plain));
        EXPECT_TRUE(SamePicture::isDrawnOver(SamePicture::Frame(drawn), SamePicture::Frame(plain)));
        EXPECT_FALSE(SamePicture::isDrawnOver(SamePicture::Frame(plain), SamePicture::Frame(drawn)));
        EXPECT_EQ(KeeperChoice::keeper({drawn, plain}, {0, 1}), 1U);
        EXPECT_EQ(KeeperChoice::keeper({plain, drawn}, {0, 1}), 0U);
    }
}

TEST(SamePictureTest, nothingIsDrawnOverAnotherShotOrACopy)
{
    const Scene scene = spots(4);
    const PhotoInfo plain = photo(scene, 50);
    struct Case {
        const char* name;
        Scene other;
    };
    const Case cases[] = {
        {"the same", scene},
        {"noisier", lit(scene, {1, 1, 1}, 8)},
        {"brighter", lit(scene, {1.15, 1.15, 1.15}, 0)},
        {"the next of a burst", cropped(scene, 0.02, 0.015, 1)},
        {"turned a little", turned(scene, 1.5)},
        {"another picture", spots(5)},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const PhotoInfo other = photo(c.other, 90);
        EXPECT_FALSE(SamePicture::isDrawnOver(SamePicture::Frame(other), SamePicture::Frame(plain)));
        EXPECT_FALSE(SamePicture::isDrawnOver(SamePicture::Frame(plain), SamePicture::Frame(other)));
    }
}

} // namespace orlen

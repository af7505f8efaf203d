#include "recognition/Sharpness.h"

#include "recognition/Scenes.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>

namespace orlen {
namespace {

using namespace Scenes;

/// The value of a grey picture at each pixel's place, as a function of its column and row.
template <typename Value>
RgbImage grey(int width, int height, Value value)
{
    RgbImage image{.width = width, .height = height, .pixels = {}};
    for (int y = 0; y < height; ++y) {
        for (int x = 0; x < width; ++x)
            image.pixels.insert(image.pixels.end(), 3, static_cast<std::uint8_t>(value(x, y)));
    }
    return image;
}

const std::uint8_t* pixelAt(const RgbImage& image, int x, int y)
{
    return image.row(y) + static_cast<std::ptrdiff_t>(x) * 3;
}

/// The measure by its definition, for pictures whose sides are `shrink` times those of the working copy: the
/// mean of whole pixels, no rounding.
double reference(const RgbImage& image, int shrink)
{
    const int width = image.width / shrink;
    const int height = image.height / shrink;
    const auto at = [&](int x, int y) {
        double sum = 0;
        for (int i = 0; i < shrink * shrink; ++i) {
            const std::uint8_t* pixel = pixelAt(image, x * shrink + i % shrink, y * shrink + i / shrink);
            sum += 0.299 * pixel[0] + 0.587 * pixel[1] + 0.114 * pixel[2];
        }
        return sum / (shrink * shrink);
    };
    std::vector<double> values;
    for (int y = 1; y < height - 1; ++y) {
        for (int x = 1; x < width - 1; ++x)
            values.push_back(4 * at(x, y) - at(x + 1, y) - at(x - 1, y) - at(x, y - 1) - at(x, y + 1));
    }
    double mean = 0;
    for (const double value : values)
        mean += value / static_cast<double>(values.size());
    double variance = 0;
    for (const double value : values)
        variance += (value - mean) * (value - mean) / static_cast<double>(values.size());
    return variance;
}

TEST(SharpnessTest, agreesWithTheDefinition)
{
    const RgbImage pictures[] = {painted(page(1), 512, 384), painted(lit(spots(1), {1, 1, 1}, 40), 512, 512)};
    for (const RgbImage& picture : pictures)
        EXPECT_NEAR(Sharpness::laplacianVariance(picture) / reference(picture, 2), 1, 0.01);
    const RgbImage small = painted(page(2), 256, 100);
    EXPECT_NEAR(Sharpness::laplacianVariance(small) / reference(small, 1), 1, 0.01);
}

TEST(SharpnessTest, chessboardIsExact)
{
    // Every Laplacian is 4 * 100 + 4 * 100, with either sign.
    const RgbImage board = grey(64, 64, [](int x, int y) { return (x + y) % 2 == 0 ? 50 : 150; });
    EXPECT_DOUBLE_EQ(Sharpness::laplacianVariance(board), 0 + 800.0 / 2 * 800.0 / 2);
}

TEST(SharpnessTest, evenPicturesHaveNone)
{
    EXPECT_EQ(Sharpness::laplacianVariance({}), 0);
    EXPECT_EQ(Sharpness::laplacianVariance(grey(100, 80, [](int, int) { return 77; })), 0);
    // A slope has no Laplacian either.
    EXPECT_EQ(Sharpness::laplacianVariance(grey(100, 80, [](int x, int) { return 2 * x; })), 0);
}

/// Each pixel as the mean of the square around it, as a lens out of focus spreads it.
RgbImage outOfFocus(const RgbImage& image, int radius)
{
    return grey(image.width, image.height, [&](int x, int y) {
        int sum = 0;
        for (int down = -radius; down <= radius; ++down) {
            const int row = std::clamp(y + down, 0, image.height - 1);
            for (int right = -radius; right <= radius; ++right)
                sum += *pixelAt(image, std::clamp(x + right, 0, image.width - 1), row);
        }
        return sum / ((2 * radius + 1) * (2 * radius + 1));
    });
}

TEST(SharpnessTest, outOfFocusFallsBelowTheLimitOfBlurryPhotos)
{
    const RgbImage sharp = painted(lit(spots(1), {1, 1, 1}, 40), 256, 192);
    const RgbImage blurred = outOfFocus(outOfFocus(sharp, 3), 3);
    EXPECT_GT(Sharpness::laplacianVariance(sharp), 100);
    EXPECT_LT(Sharpness::laplacianVariance(blurred), 22);
}

TEST(SharpnessTest, narrowPicturesAreWidenedToEight)
{
    for (const auto& [width, height] : {std::pair{1, 1}, std::pair{1000, 2}, std::pair{3, 900}}) {
        const double sharpness = Sharpness::laplacianVariance(
            grey(width, height, [](int x, int y) { return (x / 2 + y / 2) % 2 == 0 ? 0 : 255; }));
        EXPECT_TRUE(std::isfinite(sharpness));
        EXPECT_GE(sharpness, 0);
    }
}

} // namespace
} // namespace orlen

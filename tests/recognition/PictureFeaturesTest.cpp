#include "recognition/PictureFeatures.h"

#include "recognition/PixelDrawing.h"

#include <gtest/gtest.h>

#include <cmath>

namespace orlen {
namespace {

float measured(const RgbImage& image, std::string_view name)
{
    return PictureFeatures::valueOf(PictureFeatures::of(image), name);
}

TEST(PictureFeaturesTest, everySizeGivesTheSameFiniteFeatures)
{
    const auto usual = PictureFeatures::of(PixelDrawing::scene(512, 384));
    const struct {
        const char* name;
        int width, height;
    } cases[] = {{"a pixel", 1, 1},         {"smaller than a block", 8, 3}, {"a line", 512, 1},
                 {"a column", 1, 512},      {"a long strip", 512, 9},       {"just under the least", 15, 15},
                 {"just the least", 16, 16}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        for (const RgbImage& image :
             {PixelDrawing::scene(c.width, c.height), PixelDrawing::plain(c.width, c.height, {255, 255, 255}),
              PixelDrawing::plain(c.width, c.height, {0, 0, 0})}) {
            const auto features = PictureFeatures::of(image);
            ASSERT_EQ(features.size(), usual.size());
            for (std::size_t i = 0; i < features.size(); ++i) {
                EXPECT_EQ(features[i].name, usual[i].name);
                EXPECT_TRUE(std::isfinite(features[i].value)) << features[i].name;
            }
        }
    }
    EXPECT_TRUE(PictureFeatures::of(RgbImage{}).empty());
}

TEST(PictureFeaturesTest, plainColourIsFlatAndHasNoText)
{
    const RgbImage image = PixelDrawing::plain(300, 200, {30, 90, 160});
    EXPECT_EQ(measured(image, "flat 1"), 1);
    EXPECT_EQ(measured(image, "first colour"), 1);
    EXPECT_EQ(measured(image, "edges"), 0);
    EXPECT_EQ(measured(image, "dark pairs"), 0);
}

TEST(PictureFeaturesTest, linesOfWordsAreFoundInTheirPolarity)
{
    RgbImage page = PixelDrawing::plain(400, 500, {255, 255, 255});
    PixelDrawing::text(page, 40, 40, 18, 10, {20, 20, 20});
    RgbImage terminal = PixelDrawing::plain(400, 500, {15, 15, 20});
    PixelDrawing::text(terminal, 40, 40, 18, 10, {220, 220, 220});
    const float many = std::log1p(100.0F);
    EXPECT_GT(measured(page, "dark pairs"), many);
    EXPECT_GT(measured(terminal, "light pairs"), many);
    EXPECT_GT(measured(page, "dark covered rows"), 0.3F);
    EXPECT_EQ(measured(PixelDrawing::scene(400, 500), "dark lines"), 0);
}

TEST(PictureFeaturesTest, captionNeedsItsOutline)
{
    RgbImage outlined = PixelDrawing::scene(500, 400);
    RgbImage bare = outlined;
    for (int i = 0; i < 8; ++i) {
        const int x = 60 + i * 40;
        PixelDrawing::fill(outlined, x - 4, 316, 26, 58, {0, 0, 0});
        PixelDrawing::fill(outlined, x, 320, 18, 50, {255, 255, 255});
        PixelDrawing::fill(outlined, x + 6, 330, 6, 30, {0, 0, 0});
        PixelDrawing::fill(bare, x, 320, 18, 50, {255, 255, 255});
        PixelDrawing::fill(bare, x + 6, 330, 6, 30, {190, 190, 190});
    }
    EXPECT_GT(measured(outlined, "outlined letters"), std::log1p(5.0F));
    EXPECT_EQ(measured(bare, "outlined letters"), 0);
}

TEST(PictureFeaturesTest, barsAndMarginsAreMeasured)
{
    RgbImage image = PixelDrawing::scene(400, 400);
    PixelDrawing::fill(image, 0, 0, 400, 100, {255, 255, 255});
    PixelDrawing::word(image, 100, 40, 6, 30, {0, 0, 0});
    EXPECT_NEAR(measured(image, "top bar"), 0.25F, 0.01F);
    EXPECT_EQ(measured(image, "top bar level"), 255);
    EXPECT_GT(measured(image, "top bar written"), 0);
    EXPECT_NEAR(measured(image, "top margin"), 0.1F, 0.02F);
    EXPECT_EQ(measured(image, "bottom bar"), 0);
}

} // namespace
} // namespace orlen

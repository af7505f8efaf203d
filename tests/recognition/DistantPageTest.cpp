#include "recognition/DistantPage.h"

#include "platform/files/FileContent.h"
#include "recognition/ImageClassifier.h"
#include "recognition/PictureLabels.h"
#include "recognition/Pictures.h"
#include "recognition/PixelDrawing.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace orlen {
namespace {

constexpr PixelDrawing::Colour kPaper{235, 232, 225};

/// A table of dark wood, so to speak.
RgbImage table(int width, int height)
{
    RgbImage image = PixelDrawing::scene(width, height);
    for (std::uint8_t& value : image.pixels)
        value = static_cast<std::uint8_t>(value / 4);
    return image;
}

/// The table with a page of text on it that fills a seventh.
RgbImage tableWithPage()
{
    RgbImage page = PixelDrawing::plain(380, 512, kPaper);
    PixelDrawing::text(page, 40, 40, 30, 7, {40, 40, 40});
    RgbImage image = table(1300, 1000);
    for (int y = 0; y < page.height; ++y)
        for (int x = 0; x < page.width; ++x)
            for (int c = 0; c < 3; ++c)
                image.pixels[RgbImage::byteCount(image.width, 250 + y) +
                             static_cast<std::size_t>((600 + x) * 3 + c)] = page.row(y)[x * 3 + c];
    return image;
}

TEST(DistantPageTest, sheetOnADarkTableIsFoundWithItsEdges)
{
    RgbImage image = table(512, 384);
    PixelDrawing::fill(image, 200, 100, 100, 160, kPaper);
    const auto part = DistantPage::partOf(image);
    ASSERT_TRUE(part);
    EXPECT_NEAR(part->x, 194, 5);
    EXPECT_NEAR(part->y, 90, 5);
    EXPECT_NEAR(part->width, 112, 8);
    EXPECT_NEAR(part->height, 180, 8);
}

TEST(DistantPageTest, whatIsNoSmallSheetIsLeftAlone)
{
    RgbImage large = table(512, 384);
    PixelDrawing::fill(large, 40, 20, 430, 340, kPaper);
    RgbImage cutOff = table(512, 384);
    PixelDrawing::fill(cutOff, 400, 100, 112, 160, kPaper);
    RgbImage angle = table(512, 384);
    PixelDrawing::fill(angle, 200, 100, 40, 160, kPaper);
    PixelDrawing::fill(angle, 200, 220, 160, 40, kPaper);
    RgbImage faint = PixelDrawing::plain(512, 384, {120, 120, 120});
    PixelDrawing::fill(faint, 200, 100, 100, 160, {150, 150, 150});
    const struct {
        const char* name;
        RgbImage image;
    } cases[] = {{"nothing on it", table(512, 384)},
                 {"nearly the whole picture", large},
                 {"cut off", cutOff},
                 {"an angle", angle},
                 {"hardly brighter", faint},
                 {"one colour", PixelDrawing::plain(300, 300, kPaper)},
                 {"a strip", PixelDrawing::plain(3, 512, kPaper)},
                 {"a pixel", PixelDrawing::plain(1, 1, kPaper)},
                 {"none", {}}};
    for (const auto& c : cases)
        EXPECT_FALSE(DistantPage::partOf(c.image)) << c.name;
}

/// What the photo analysis goes by.
std::vector<std::string> wordsFor(const RgbImage& picture)
{
    const TempHome home;
    const auto file = openFile(home.file("picture.png", Pictures::png(picture)));
    if (!file.ok())
        return {"not readable"};
    const auto decoded = ImageDecoder::decode(file.value().get(), ImageDecoder::kForRecognition);
    if (!decoded)
        return {"no picture"};
    std::vector<std::string> words;
    for (const ImageLabel& label : PictureLabels::of(file.value().get(), *decoded)) {
        if (ImageClassifier::decides(label))
            words.push_back(ImageClassifier::isSurelyPage(label) ? "page" : label.identifier);
    }
    return words;
}

TEST(DistantPageTest, letterAcrossTheTableIsReadUpClose)
{
    EXPECT_EQ(wordsFor(tableWithPage()), std::vector<std::string>{"page"});
    RgbImage blank = table(1300, 1000);
    PixelDrawing::fill(blank, 600, 250, 380, 512, kPaper);
    EXPECT_TRUE(wordsFor(blank).empty());
}

} // namespace
} // namespace orlen

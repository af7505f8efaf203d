#include "recognition/ImageClassifier.h"

#include "recognition/LineDirection.h"
#include "recognition/PixelDrawing.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <future>
#include <map>

namespace orlen {
namespace {

const std::map<std::string, float> kDecides = {
    {"screenshot", 0.3F}, {"receipt", 0.2F}, {"document", 0.6F}, {"meme", 0.2F}, {"illustration", 0.3F}};

/// The words that decide something.
std::vector<std::string> decisions(const RgbImage& image, ImageClassifier::Evidence evidence = {})
{
    std::vector<std::string> words;
    for (const ImageLabel& label : ImageClassifier::labels(image, evidence))
        if (label.confidence >= kDecides.at(label.identifier))
            words.push_back(label.identifier);
    return words;
}

/// A window with a title bar, buttons and coloured text on a dark ground.
RgbImage terminal()
{
    RgbImage image = PixelDrawing::plain(512, 340, {24, 24, 32});
    PixelDrawing::fill(image, 0, 0, 512, 20, {60, 62, 70});
    PixelDrawing::word(image, 220, 5, 9, 9, {230, 230, 230});
    for (int i = 0; i < 3; ++i)
        PixelDrawing::fill(image, 450 + i * 20, 6, 9, 9, {200, 200, 205});
    PixelDrawing::text(image, 8, 30, 9, 8, {220, 220, 220});
    for (int i = 0; i < 9; ++i)
        PixelDrawing::word(image, 8, 180 + i * 16, 4 + i % 3, 8, {90, 220, 120});
    return image;
}

TEST(ImageClassifierTest, windowIsAScreenshot)
{
    EXPECT_EQ(decisions(terminal()), std::vector<std::string>{"screenshot"});
}

/// A light grey dialog with tabs, a framed table, a marked row and buttons.
RgbImage dialog()
{
    RgbImage image = PixelDrawing::plain(512, 400, {239, 240, 241});
    PixelDrawing::fill(image, 0, 0, 512, 26, {71, 80, 87});
    PixelDrawing::word(image, 200, 9, 12, 8, {252, 252, 252});
    for (int i = 0; i < 3; ++i) {
        PixelDrawing::fill(image, 16 + i * 90, 40, 84, 24,
                           i == 0 ? PixelDrawing::Colour{255, 255, 255}
                                  : PixelDrawing::Colour{214, 216, 218});
        PixelDrawing::word(image, 26 + i * 90, 48, 7, 8, {35, 38, 41});
        PixelDrawing::fill(image, 240 + i * 88, 360, 80, 26, {252, 252, 252});
        PixelDrawing::word(image, 254 + i * 88, 369, 6, 8, {35, 38, 41});
    }
    PixelDrawing::fill(image, 16, 72, 480, 272, {188, 192, 191});
    PixelDrawing::fill(image, 17, 73, 478, 270, {255, 255, 255});
    PixelDrawing::fill(image, 17, 115, 478, 20, {61, 174, 233});
    for (int row = 0; row < 8; ++row)
        for (int column = 0; column < 3; ++column)
            PixelDrawing::word(image, 24 + column * 160, 80 + row * 20, 5 + (row + column) % 8, 8,
                               {35, 38, 41});
    return image;
}

TEST(ImageClassifierTest, dialogWithATableIsAScreenshotAndNoPage)
{
    EXPECT_EQ(decisions(dialog()), std::vector<std::string>{"screenshot"});
}

TEST(ImageClassifierTest, cameraTakesNoScreenshots)
{
    EXPECT_TRUE(decisions(terminal(), {.isFromCamera = true}).empty());
}

TEST(ImageClassifierTest, textureOfAPhotoDecidesNothing)
{
    EXPECT_TRUE(decisions(PixelDrawing::scene(512, 384)).empty());
    EXPECT_TRUE(decisions(PixelDrawing::scene(288, 384)).empty());
}

TEST(ImageClassifierTest, pageOfTextIsADocumentHoweverItIsTurned)
{
    RgbImage page = PixelDrawing::plain(380, 512, {255, 255, 255});
    PixelDrawing::text(page, 40, 40, 30, 7, {40, 40, 40});
    for (int turn = 0; turn < 360; turn += 90) {
        SCOPED_TRACE(turn);
        const auto words = decisions(page, {.isFromCamera = true});
        EXPECT_EQ(words.size(), 1U);
        const std::string word = words.empty() ? "" : words.front();
        EXPECT_TRUE(word == "document" || word == "receipt") << word;
        page = LineDirection::turned(page);
    }
}

TEST(ImageClassifierTest, pageWithoutLettersIsNone)
{
    const auto words = decisions(PixelDrawing::plain(380, 512, {255, 255, 255}));
    EXPECT_EQ(std::count(words.begin(), words.end(), "document"), 0);
    EXPECT_EQ(std::count(words.begin(), words.end(), "receipt"), 0);
}

TEST(ImageClassifierTest, labelsAreSortedInRangeAndOnceEach)
{
    const struct {
        const char* name;
        RgbImage image;
    } cases[] = {{"a window", terminal()},
                 {"a scene", PixelDrawing::scene(300, 500)},
                 {"a pixel", PixelDrawing::plain(1, 1, {255, 0, 0})},
                 {"tiny", PixelDrawing::scene(8, 3)},
                 {"a long strip", PixelDrawing::scene(512, 4)},
                 {"black", PixelDrawing::plain(512, 512, {0, 0, 0})}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto labels = ImageClassifier::labels(c.image, {});
        EXPECT_FALSE(labels.empty());
        std::map<std::string, int> count;
        float last = 1;
        for (const ImageLabel& label : labels) {
            EXPECT_TRUE(kDecides.contains(label.identifier)) << label.identifier;
            EXPECT_EQ(++count[label.identifier], 1);
            EXPECT_GE(label.confidence, 0);
            EXPECT_LE(label.confidence, last);
            last = label.confidence;
        }
    }
    EXPECT_TRUE(ImageClassifier::labels(RgbImage{}, {}).empty());
}

TEST(ImageClassifierTest, severalThreadsGetTheSameLabels)
{
    const RgbImage image = terminal();
    const auto alone = ImageClassifier::labels(image, {});
    std::vector<std::future<std::vector<ImageLabel>>> others;
    others.reserve(4);
    for (int i = 0; i < 4; ++i)
        others.push_back(std::async(std::launch::async, [&] { return ImageClassifier::labels(image, {}); }));
    for (auto& other : others)
        EXPECT_EQ(other.get(), alone);
}

} // namespace
} // namespace orlen

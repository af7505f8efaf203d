#include "platform/images/ImageWorkers.h"
#include "recognition/Pictures.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <string>
#include <vector>

namespace orlen {

namespace {

using PixelColour = std::array<int, 3>;

/// Of pages that are 200 by 100 points, with a drawing. The fonts have to be there: none is in the document.
std::string documentOf(const std::string& drawing, int pages, const std::string& font = "Helvetica")
{
    std::string kids;
    for (int i = 0; i < pages; ++i)
        kids += "3 0 R ";
    const std::vector<std::string> objects{
        "<</Type/Catalog/Pages 2 0 R>>",
        "<</Type/Pages/Count " + std::to_string(pages) + "/Kids[" + kids + "]>>",
        "<</Type/Page/Parent 2 0 R/MediaBox[0 0 200 100]/Contents 4 0 R/Resources<</Font<</F1 5 0 R>>>>>>",
        "<</Length " + std::to_string(drawing.size()) + ">>stream\n" + drawing + "\nendstream",
        "<</Type/Font/Subtype/Type1/BaseFont/" + font + ">>",
    };
    std::string text = "%PDF-1.4\n";
    std::string table = "0000000000 65535 f \n";
    for (std::size_t i = 0; i < objects.size(); ++i) {
        const std::string at = std::to_string(text.size());
        table += std::string(10 - at.size(), '0') + at + " 00000 n \n";
        text += std::to_string(i + 1) + " 0 obj" + objects[i] + " endobj\n";
    }
    const std::string start = std::to_string(text.size());
    return text + "xref\n0 6\n" + table + "trailer<</Size 6/Root 1 0 R>>\nstartxref\n" + start + "\n%%EOF\n";
}

/// A document of pages that are red on the left.
std::string document(int pages)
{
    return documentOf("1 0 0 rg 0 0 100 100 re f", pages);
}

PixelColour colourAt(const RgbImage& image, int x, int y)
{
    const std::uint8_t* pixel = image.row(y) + RgbImage::byteCount(x, 1);
    return {pixel[0], pixel[1], pixel[2]};
}

} // namespace

TEST(PageTest, theFirstPageIsDrawnInsideTheCageAtTheSizeAskedFor)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    const std::string path = home.file("a.pdf", document(3));
    const auto page = workers.page(path, {400, 400}, {});
    ASSERT_TRUE(page);
    EXPECT_EQ(page->pages, 3);
    EXPECT_EQ(page->whole, (PixelSize{200, 100}));
    EXPECT_EQ(page->image.width, 400);
    EXPECT_EQ(page->image.height, 200);
    EXPECT_EQ(colourAt(page->image, 100, 100), (PixelColour{255, 0, 0}));
    EXPECT_EQ(colourAt(page->image, 300, 100), (PixelColour{255, 255, 255})) << "paper";
    EXPECT_FALSE(workers.smallPicture(path, {{64, 64}}, {})) << "no photo";
    EXPECT_FALSE(workers.analyze(path, {}));
    EXPECT_FALSE(workers.page(home.file("b.pdf", Pictures::encoded({})), {64, 64}, {})) << "no document";
}

TEST(PageTest, lettersOfFontsThatAreNotInTheDocumentAreShown)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    for (const char* font : {"Helvetica", "TimesNewRomanPS-BoldMT", "NoSuchFont"}) {
        const auto path = home.file("a.pdf", documentOf("BT /F1 40 Tf 10 40 Td (Hamburg) Tj ET", 1, font));
        const auto page = workers.page(path, {400, 400}, {});
        ASSERT_TRUE(page) << font;
        const auto dark =
            std::ranges::count_if(page->image.pixels, [](std::uint8_t value) { return value < 128; });
        EXPECT_GT(dark, 3'000) << font;
    }
}

TEST(PageTest, aDamagedDocumentDoesNoHarm)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    const std::string whole = document(1);
    for (std::size_t length = 0; length < whole.size(); length += 40) {
        const auto page = workers.page(home.file("cut.pdf", whole.substr(0, length)), {64, 64}, {});
        EXPECT_TRUE(!page || page->image.width <= 64) << length;
    }
    std::string huge = whole;
    huge.replace(huge.find("200 100"), 7, "90000 90000");
    EXPECT_FALSE(workers.page(home.file("huge.pdf", huge), {64, 64}, {}));
    EXPECT_TRUE(workers.page(home.file("whole.pdf", whole), {64, 64}, {}));
}

} // namespace orlen

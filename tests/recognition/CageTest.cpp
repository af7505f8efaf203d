#include "platform/images/CageReport.h"
#include "platform/images/ImageWorkers.h"
#include "recognition/Pictures.h"
#include "support/TempHome.h"
#include "support/TestBmp.h"

#include <gtest/gtest.h>

#include <algorithm>

// The library that writes the HEIC picture for the test never frees what it made.
extern "C" const char* __lsan_default_suppressions(); // NOLINT(bugprone-reserved-identifier): the sanitizer's
extern "C" const char* __lsan_default_suppressions()  // NOLINT(bugprone-reserved-identifier)
{
    return "leak:libx265\n";
}

namespace orlen {

namespace {

using Wall = CageReport::Wall;

/// What holds when a sanitizer has to look at its own process.
bool holdsUnderSanitizers(Wall wall)
{
    return wall == Wall::files || wall == Wall::environment;
}

} // namespace

TEST(CageTest, nothingThatIsTriedInsideSucceeds)
{
    const auto report = CageReport::ask(ORLEN_RECOGNIZER);
    ASSERT_TRUE(report);
    if (report->landlock == 0 && ORLEN_IS_SANITIZED)
        GTEST_SKIP() << "This system has no Landlock.";
    for (const CageReport::Attempt& attempt : report->attempts)
        EXPECT_TRUE(attempt.isRefused || (ORLEN_IS_SANITIZED && !holdsUnderSanitizers(attempt.wall)))
            << attempt.name;
    for (int wall = 0; wall <= static_cast<int>(Wall::memory); ++wall)
        EXPECT_TRUE(ORLEN_IS_SANITIZED || report->holds(static_cast<Wall>(wall))) << wall;
}

TEST(CageTest, aReportIsBelievedOnlyWhole)
{
    CageReport report{3, {{Wall::files, "open a file", true}, {Wall::code, "write code", false}}};
    const auto read = CageReport::decoded(report.encoded());
    ASSERT_TRUE(read);
    EXPECT_EQ(read->landlock, 3);
    EXPECT_TRUE(read->holds(Wall::files));
    EXPECT_FALSE(read->holds(Wall::code));
    EXPECT_FALSE(read->holds(Wall::network)) << "nothing of it was tried";
    for (const char* text :
         {"", "landlock", "landlock 3\nwindow refused open", "landlock 3\nfiles maybe open"})
        EXPECT_FALSE(CageReport::decoded(text)) << text;
    EXPECT_FALSE(CageReport::ask("")) << "there is none";
    EXPECT_FALSE(CageReport::ask("/bin/false"));
}

TEST(CageTest, everyFormatIsReadInside)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    for (const char* format : {".jpg", ".png", ".heic", ".avif", ".webp", ".tif", ".tif[compression=deflate]",
                               ".tif[compression=jpeg]", ".gif", ".jxl", ".bmp"}) {
        SCOPED_TRACE(format);
        const bool isBmp = std::string_view(format) == ".bmp";
        Pictures::Options options;
        options.orientation = 6;
        options.format = format;
        const std::string path = home.file("picture", isBmp ? testBmp(64, 48) : Pictures::encoded(options));
        const auto analysis = workers.analyze(path, {});
        ASSERT_TRUE(analysis);
        EXPECT_EQ(analysis->width, 64);
        EXPECT_TRUE(analysis->print);
        EXPECT_EQ(analysis->labels.size(), 4U) << "of the models";
        const auto small = workers.smallPicture(path, {{32, 32}}, {});
        ASSERT_TRUE(small);
        EXPECT_EQ(std::max(small->image.width, small->image.height), 32);
        const bool isTurned = std::string_view(format).starts_with(".jpg");
        EXPECT_EQ(std::max(small->whole.width, small->whole.height), 64);
        EXPECT_TRUE(!isTurned || small->whole.height == 64);
    }
}

TEST(CageTest, anIconKeepsWhatIsSeeThroughAndADrawingGrows)
{
    const TempHome home;
    ImageWorkers workers(ImageWorkers::Options{ORLEN_RECOGNIZER});
    Pictures::Options options;
    options.alpha = 100;
    const auto png = workers.icon(home.file("a.png", Pictures::encoded(options)), {32, 32}, {});
    ASSERT_TRUE(png);
    EXPECT_EQ(png->image.width, 32);
    EXPECT_EQ(png->alpha, std::vector<std::uint8_t>(32U * 24, 100));
    const auto opaque = workers.icon(home.file("b.bmp", testBmp(64, 48)), {16, 16}, {});
    ASSERT_TRUE(opaque);
    EXPECT_EQ(opaque->alpha, std::vector<std::uint8_t>(16U * 12, 255));
    const std::string drawing =
        home.file("c.svg", R"(<svg xmlns="http://www.w3.org/2000/svg" width="8" height="8">
        <rect width="8" height="4" fill="#f00"/><text y="8">words</text></svg>)");
    const auto svg = workers.icon(drawing, {64, 64}, {});
    ASSERT_TRUE(svg);
    EXPECT_EQ(svg->image.height, 64);
    EXPECT_EQ(svg->image.pixels[0], 255);
    EXPECT_EQ(svg->image.pixels[1], 0);
    EXPECT_EQ(svg->alpha.front(), 255);
    EXPECT_FALSE(workers.smallPicture(drawing, {{64, 64}}, {})) << "no photo";
    EXPECT_FALSE(workers.icon(home.file("d.xpm", "/* XPM */\nstatic char* d[] = {};"), {16, 16}, {}));
}

} // namespace orlen

#include "window/diskmap/TileColours.h"

#include "app/EventLoop.h"
#include "clean/Persist.h"
#include "clean/Safety.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <QSettings>
#include <QSignalSpy>

namespace orlen {

namespace {

using std::chrono::days;

constexpr std::int64_t kMegabyte = 1'000'000;
const TimePoint kNow = *timeFromIso("2026-03-01T12:00:00Z");

Finding findingOf(FindingKind kind, Rating rating, std::vector<FileEntry> entries)
{
    Finding finding(kind, std::move(entries));
    finding.rating = rating;
    return finding;
}

std::string adviceOn(const RatedPaths& rated, const std::string& path, std::int64_t size)
{
    const auto rating = rated.ratingOf(path, size);
    return rating ? std::string(rawValue(*rating)) : "none";
}

} // namespace

TEST(TileColoursTest, theStepsOfAgeAndGrowthBeginWhereTheLegendSays)
{
    using TileShade::Age;
    using TileShade::Growth;
    EXPECT_EQ(TileShade::ageOf(kNow + days(1), kNow), Age::week) << "a clock that was wrong";
    EXPECT_EQ(TileShade::ageOf(kNow - days(7), kNow), Age::week);
    EXPECT_EQ(TileShade::ageOf(kNow - days(8), kNow), Age::month);
    EXPECT_EQ(TileShade::ageOf(kNow - days(31), kNow), Age::year);
    EXPECT_EQ(TileShade::ageOf(kNow - days(366), kNow), Age::twoYears);
    EXPECT_EQ(TileShade::ageOf(kNow - days(731), kNow), Age::older);
    EXPECT_EQ(TileShade::ageOf(std::nullopt, kNow), Age::unknown);

    EXPECT_EQ(TileShade::growthOf(-10 * kMegabyte), Growth::less);
    EXPECT_EQ(TileShade::growthOf(-10 * kMegabyte + 1), Growth::same);
    for (const Growth step : {Growth::some, Growth::much, Growth::most}) {
        EXPECT_EQ(TileShade::growthOf(TileShade::leastOf(step)), step);
        EXPECT_LT(TileShade::growthOf(TileShade::leastOf(step) - 1), step);
    }
    EXPECT_EQ(TileShade::growthOf(std::nullopt), Growth::unknown);
}

TEST(TileColoursTest, anItemHasItsOwnRatingOrThatOfWhatItIsIn)
{
    const RatedPaths rated({
        findingOf(FindingKind::caches, Rating::safe, {{"/h/.cache/app", 60}, {"/h/.cache/web", 20}}),
        findingOf(FindingKind::oldDownloads, Rating::review,
                  {{"/h/Downloads/a", 100}, {"/h/Downloads/a/b", 100}, {"/h/Downloads/c", 40}}),
        findingOf(FindingKind::largeFiles, Rating::keep, {{"/h/Downloads/c", 40}}),
    });
    EXPECT_EQ(adviceOn(rated, "/h/.cache/app", 60), "safe");
    EXPECT_EQ(adviceOn(rated, "/h/.cache/app/deep/in", 5), "safe");
    EXPECT_EQ(adviceOn(rated, "/h/Downloads/c", 40), "keep") << "listed twice: the more careful one";
    EXPECT_EQ(adviceOn(rated, "/h/.cache", 160), "safe") << "half of it is listed";
    EXPECT_EQ(adviceOn(rated, "/h/.cache", 162), "none");
    EXPECT_EQ(adviceOn(rated, "/h/Downloads", 280), "review") << "most of it, each byte once";
    EXPECT_EQ(adviceOn(rated, "/h/Downloads", 284), "none");
    EXPECT_EQ(adviceOn(rated, "/h/.cach", 1), "none");
    EXPECT_EQ(adviceOn(rated, "/h/.cache/ap", 1), "none");
}

class MapColoursTest : public testing::Test {
protected:
    MapColoursTest() { QSettings().clear(); }
    ~MapColoursTest() override { QSettings().clear(); }

    [[nodiscard]] static QString shadeName(const TileColours& colours, const TreeNode& node)
    {
        return colours.legend().value(colours.shadeOf(node));
    }
    [[nodiscard]] static QString fact(const TileColours& colours, const TreeNode& node)
    {
        return colours.fact(node, colours.shadeOf(node));
    }
    [[nodiscard]] TreeNode folder(const std::string& name) const
    {
        return {.name = name, .path = home.path(name), .size = kMegabyte, .isDir = true};
    }

    const TempHome home;
};

TEST_F(MapColoursTest, growthComparesTheLastScanWithOneAMonthBefore)
{
    AppModel app({.startup = AppModel::Startup::filesOnly});
    TileColours colours(app);
    EXPECT_FALSE(colours.growthRefusal().isEmpty());
    colours.choose(TileColours::Growth);
    EXPECT_EQ(colours.meaning(), TileColours::Kind) << "there is nothing to tell";

    const QSignalSpy changes(&colours, &TileColours::changed);
    for (const int daysAgo : {90, 40, 1}) {
        FolderReading reading{
            {},
            kMegabyte,
            {{home.path("Music"), 50 * kMegabyte}, {home.path("Videos"), (900 - 10 * daysAgo) * kMegabyte}}};
        if (daysAgo > 1)
            reading.folders.push_back({home.path("gone"), 300 * kMegabyte});
        app.storage()->folders().record(reading, std::chrono::system_clock::now() - days(daysAgo));
    }
    EXPECT_GT(changes.size(), 0);
    EXPECT_TRUE(colours.growthRefusal().isEmpty());
    colours.choose(TileColours::Growth);
    EXPECT_TRUE(colours.note().startsWith("since ")) << colours.note().toStdString();
    EXPECT_EQ(shadeName(colours, folder("Videos")), "+100 MB");
    EXPECT_EQ(fact(colours, folder("Videos")), "+390 MB");
    EXPECT_EQ(shadeName(colours, folder("Music")), "As before");
    EXPECT_EQ(fact(colours, folder("gone")), "\u2212300 MB") << "it is back, but the last scan missed it";
    EXPECT_EQ(shadeName(colours, folder("Other")), "Not known");
    EXPECT_EQ(fact(colours, folder("Other")), "");
    EXPECT_EQ(TileColours(app).meaning(), TileColours::Growth) << "remembered";
}

TEST_F(MapColoursTest, agesAreThoseOfFiles)
{
    AppModel app({.startup = AppModel::Startup::filesOnly});
    TileColours colours(app);
    TreeNode old = folder("old");
    EXPECT_EQ(shadeName(colours, old), "Folders");
    colours.choose(TileColours::Age);
    EXPECT_EQ(shadeName(colours, old), "Not known");
    old.newest = kNow - days(4'000);
    EXPECT_EQ(shadeName(colours, old), "Earlier");
    EXPECT_TRUE(fact(colours, old).startsWith("Modified "));
    old.isOther = true;
    EXPECT_EQ(shadeName(colours, old), "Not known") << "it is many";
}

TEST_F(MapColoursTest, ratingsComeFromTheScanAndFromWhatIsProtected)
{
    home.fileOfSize(".cache/mesa_shader_cache/one", 2 * kMegabyte);
    AppModel app({.startup = AppModel::Startup::filesOnly});
    Safety::refresh();
    TileColours colours(app);
    colours.choose(TileColours::Rating);
    EXPECT_FALSE(colours.note().isEmpty()) << "there was no scan";
    EXPECT_EQ(fact(colours, folder(".ssh")), "Protected");
    EXPECT_EQ(fact(colours, folder("Documents")), "Not rated") << "what lies in it may move";
    EXPECT_EQ(fact(colours, folder(".cache/mesa_shader_cache")), "Not rated");
    app.results()->startScan();
    ASSERT_TRUE(waitUntil([&] { return app.results()->phase() == Phase::results; }));
    EXPECT_TRUE(colours.note().isEmpty());
    EXPECT_EQ(fact(colours, folder(".cache/mesa_shader_cache")), "Safe");
    EXPECT_EQ(colours.symbols().size(), colours.legend().size());
}

} // namespace orlen

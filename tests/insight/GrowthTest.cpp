#include "insight/Growth.h"

#include "insight/ReadingPair.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using std::chrono::days;
using testing::ElementsAre;

constexpr std::int64_t kMega = 1'000'000;
const TimePoint kFirstScan = *timeFromIso("2026-03-01T12:00:00Z");

using Sizes = std::vector<FolderSize>;

FolderReading reading(int day, Sizes folders, std::int64_t least = kMega)
{
    for (FolderSize& folder : folders)
        folder.bytes *= kMega;
    std::ranges::sort(folders, {}, &FolderSize::path);
    return {kFirstScan + days(day), least, std::move(folders)};
}

std::vector<std::string> grown(Sizes before, Sizes after, std::int64_t least = kMega)
{
    const std::vector readings{reading(0, std::move(before), least), reading(1, std::move(after))};
    std::vector<std::string> told;
    const Growth growth = Growth::sinceLastScan(readings).value_or(Growth{});
    for (const Growth::Folder& folder : growth.folders)
        told.push_back(folder.path + " +" + std::to_string(folder.bytes() / kMega));
    return told;
}

} // namespace

TEST(GrowthTest, eachGrowthIsToldOnceByTheInnermostFolderThatExplainsIt)
{
    EXPECT_THAT(
        grown({{"/h", 500}, {"/h/a", 100}, {"/h/a/b", 50}}, {{"/h", 600}, {"/h/a", 200}, {"/h/a/b", 150}}),
        ElementsAre("/h/a/b +100"));
    EXPECT_THAT(
        grown({{"/h", 500}, {"/h/a", 100}, {"/h/a/b", 50}}, {{"/h", 600}, {"/h/a", 200}, {"/h/a/b", 90}}),
        ElementsAre("/h/a +100"))
        << "what lies deeper explains less than half";
    EXPECT_THAT(grown({{"/h", 500}, {"/h/a", 100}, {"/h/b", 50}}, {{"/h", 600}, {"/h/a", 145}, {"/h/b", 95}}),
                ElementsAre("/h/a +45", "/h/b +45"))
        << "together they do";
    EXPECT_THAT(
        grown({{"/h", 500}, {"/h/a", 100}, {"/h/a-b", 50}}, {{"/h", 500}, {"/h/a", 130}, {"/h/a-b", 20}}),
        ElementsAre("/h/a +30"))
        << "although as much shrank";
    EXPECT_THAT(grown({{"/h", 500}, {"/h/a", 100}}, {{"/h", 509}, {"/h/a", 109}}), ElementsAre());
}

TEST(GrowthTest, foldersMayBeNewAndMayVanish)
{
    EXPECT_THAT(grown({{"/h", 500}, {"/h/old", 300}}, {{"/h", 600}, {"/h/new", 400}}),
                ElementsAre("/h/new +400"));
    EXPECT_THAT(grown({{"/h", 500}}, {{"/h", 600}, {"/h/a", 100}}, 30 * kMega), ElementsAre("/h +100"))
        << "may have held up to 30 MB before: too little is known of it";
    EXPECT_THAT(grown({{"/h", 500}}, {{"/h", 620}, {"/h/a", 120}}, 30 * kMega), ElementsAre("/h/a +120"));
}

TEST(GrowthTest, aPeriodIsComparedWithWhatCameBefore)
{
    const std::vector readings{reading(0, {{"/a", 10}}), reading(10, {{"/a", 30}}), reading(20, {{"/a", 70}}),
                               reading(30, {{"/a", 150}})};
    const struct {
        const char* name;
        int from;
        int to;
        int first;
        int last; ///< -1: nothing to compare
    } cases[] = {
        {"until now", 12, 99, 10, 30},          {"on the day of a scan", 10, 99, 10, 30},
        {"before the first", -5, 99, 0, 30},    {"a past one", 5, 25, 0, 20},
        {"since the last scan", 30, 99, 0, -1}, {"between two scans", 21, 29, 0, -1},
        {"before all", -9, -5, 0, -1},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto growth = Growth::between(readings, kFirstScan + days(c.from), kFirstScan + days(c.to));
        ASSERT_EQ(growth.has_value(), c.last >= 0);
        if (!growth)
            continue;
        EXPECT_EQ(growth->since, kFirstScan + days(c.first));
        EXPECT_EQ(growth->until, kFirstScan + days(c.last));
    }
    EXPECT_EQ(Growth::sinceLastScan(readings)->since, kFirstScan + days(20));
    EXPECT_FALSE(Growth::sinceLastScan(std::span(readings).first(1)));
    EXPECT_FALSE(Growth::between({}, kFirstScan));
}

TEST(GrowthTest, theChangesOfAllFoldersCountWhatIsInThem)
{
    const FolderReading before = reading(0, {{"/h", 500}, {"/h/a", 100}, {"/h/gone", 40}, {"/h/small", 3}});
    const FolderReading after = reading(1, {{"/h", 560}, {"/h/a", 90}, {"/h/new", 60}, {"/h/tiny", 2}});
    const ReadingPair::Changes expected{
        {"/h", 60 * kMega}, {"/h/a", -10 * kMega}, {"/h/gone", -40 * kMega}, {"/h/new", 60 * kMega}};
    EXPECT_EQ((ReadingPair{before, after}.changes()), expected) << "nothing is said of what is too small";
}

} // namespace orlen

#include "clean/FolderReadingJson.h"
#include "clean/Persist.h"
#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using namespace std::chrono_literals;
using std::chrono::days;
using testing::Contains;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

const TimePoint kNow = *timeFromIso("2026-03-20T12:00:00Z");

std::vector<FolderReading> twoReadings()
{
    return {{kNow - days(1), 1'000'000, {{"/home/a", 50'000'000}, {"/home/a/\"b\"", 20'000'000}}},
            {kNow, 2'000'000, {{"/home/a", 70'000'000}, {"/home/é", 3'000'000}}}};
}

std::string withPaths(const std::string& paths, const std::string& folders, const std::string& bytes)
{
    return R"({"paths":)" + paths + R"(,"readings":[{"date":"2026-03-20T12:00:00Z","least":1,"folders":)" +
           folders + R"(,"bytes":)" + bytes + "}]}";
}

} // namespace

TEST(FolderReadingTest, aDayThenAWeekHasOneReadingAndNoneIsOlderThanTwoYears)
{
    std::vector<FolderReading> readings;
    constexpr int kDays = 3 * 365;
    for (int hour = 0; hour < kDays * 24; hour += 8)
        FolderReadings::add(readings, {kNow - days(kDays) + std::chrono::hours(hour), hour, {}});
    const TimePoint newest = readings.back().date;
    const auto agedOver = [&](days age) {
        return std::ranges::count_if(readings, [&](const FolderReading& r) { return newest - r.date > age; });
    };
    EXPECT_EQ(std::ssize(readings) - agedOver(days(7)), 3 * 7 + 1);
    EXPECT_NEAR(static_cast<double>(agedOver(days(7)) - agedOver(days(31))), 24, 1);
    EXPECT_NEAR(static_cast<double>(agedOver(days(31))), 100, 1);
    EXPECT_LE(newest - readings.front().date, days(731));
    EXPECT_TRUE(std::ranges::is_sorted(readings, {}, &FolderReading::date));
}

TEST(FolderReadingTest, aWrongClockCostsLittle)
{
    std::vector<FolderReading> readings;
    for (int day = 0; day < 5; ++day)
        FolderReadings::add(readings, {kNow + days(day), 0, {}});
    FolderReadings::add(readings, {kNow - days(10'000), 0, {}});
    EXPECT_THAT(readings, SizeIs(5)) << "the clock is wrong now";
    FolderReadings::add(readings, {kNow + days(700), 0, {}});
    FolderReadings::add(readings, {kNow + days(6), 0, {}});
    EXPECT_EQ(readings.back().date, kNow + days(6)) << "the clock was wrong then";
    EXPECT_GE(readings.size(), 2U);
}

TEST(FolderReadingTest, whatIsSavedIsLoaded)
{
    const TempHome home;
    EXPECT_THAT(Persist::loadFolderReadings().records, IsEmpty());
    ASSERT_TRUE(Persist::saveFolderReadings(twoReadings()).ok());
    const auto loaded = Persist::loadFolderReadings();
    EXPECT_EQ(loaded.records, twoReadings());
    EXPECT_EQ(loaded.problem, Persist::Problem::none);
    EXPECT_EQ(statusOf(Persist::dir() + "/folders.json").value().mode, 0600U);
}

TEST(FolderReadingTest, aDamagedFileIsSetAsideBeforeItIsReplaced)
{
    const TempHome home;
    ASSERT_TRUE(Persist::saveFolderReadings(twoReadings()).ok());
    const std::string file = Persist::dir() + "/folders.json";
    const std::string whole = readWholeFile(file, 10'000).value();
    home.file(".local/share/Orlen/folders.json", whole.substr(0, whole.size() / 2));
    const auto loaded = Persist::loadFolderReadings();
    EXPECT_THAT(loaded.records, IsEmpty());
    EXPECT_EQ(loaded.problem, Persist::Problem::damaged);
    ASSERT_TRUE(Persist::saveFolderReadings(twoReadings()).ok());
    EXPECT_THAT(listNames(Persist::dir()), Contains(StartsWith("folders.unreadable-")));
    EXPECT_EQ(Persist::loadFolderReadings().records, twoReadings());
}

TEST(FolderReadingTest, onlySoundNumbersAndPathsComeIn)
{
    const struct {
        const char* name;
        std::string text;
        std::size_t readings;
    } cases[] = {
        {"as written", withPaths(R"(["/a","/b"])", "[1,0]", "[5,6]"), 1},
        {"a number too large", withPaths(R"(["/a"])", "[0]", "[9007199254740993]"), 0},
        {"a negative one", withPaths(R"(["/a"])", "[0]", "[-1]"), 0},
        {"a fraction", withPaths(R"(["/a"])", "[0]", "[1.5]"), 0},
        {"no such path", withPaths(R"(["/a"])", "[1]", "[5]"), 0},
        {"a path twice", withPaths(R"(["/a","/a"])", "[0,1]", "[5,6]"), 0},
        {"too few numbers", withPaths(R"(["/a","/b"])", "[0,1]", "[5]"), 0},
        {"a path from nowhere", withPaths(R"(["a"])", "[0]", "[5]"), 0},
        {"a path that is none", withPaths("[7]", "[0]", "[5]"), 0},
        {"no object", "[1,2]", 0},
        {"nothing", "", 0},
        {"deep", std::string(100'000, '['), 0},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        const auto decoded = FolderReadingJson::decode(c.text);
        EXPECT_THAT(decoded.records, SizeIs(c.readings));
        EXPECT_EQ(decoded.isWhole, c.readings == 1);
    }
}

} // namespace orlen

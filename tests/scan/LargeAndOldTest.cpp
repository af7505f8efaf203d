#include "scan/LargeAndOld.h"

#include "platform/desktop/RecentDocuments.h"
#include "platform/text/PathText.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>

namespace orlen {
namespace {

using namespace std::chrono_literals;
using testing::ElementsAre;

class LargeAndOldTest : public testing::Test {
protected:
    static constexpr TimePoint kNow = TimePoint(std::chrono::sys_days(std::chrono::year(2025) / 1 / 1));
    static constexpr auto kYear = std::chrono::hours(365 * 24);

    /// A candidate of any size: the file itself stays small.
    Cand cand(const std::string& name, std::int64_t size, TimePoint modified, TimePoint opened)
    {
        const std::string path = home.file(name);
        TempHome::setTimes(path, opened, modified);
        return {path, size, modified};
    }

    [[nodiscard]] static std::vector<std::string> names(const Finding& finding)
    {
        std::vector<std::string> names;
        for (const FileEntry& entry : finding.items)
            names.emplace_back(PathText::lastComponent(entry.path));
        return names;
    }

    TempHome home;
};

TEST_F(LargeAndOldTest, limitsDecideWhatIsLargeAndWhatIsOld)
{
    const TimePoint old = kNow - kYear - 1s;
    const TimePoint notOld = kNow - kYear;
    const std::vector<Cand> cands{
        cand("large-and-old", 500'000'000, old, old),
        cand("not-large", 499'999'999, old, old),
        cand("old", 10'000'000, old, old),
        cand("old-but-small", 9'999'999, old, old),
        cand("changed", 10'000'000, notOld, old),
        cand("opened", 10'000'000, old, notOld),
    };
    const auto findings = largeAndOld(cands, 500'000'000, kNow, RecentDocuments());
    ASSERT_EQ(findings.size(), 2);
    EXPECT_EQ(findings[0].kind, FindingKind::largeFiles);
    EXPECT_EQ(findings[1].kind, FindingKind::oldFiles);
    EXPECT_THAT(names(findings[0]), ElementsAre("large-and-old"));
    EXPECT_THAT(names(findings[1]), ElementsAre("not-large", "old"));
    EXPECT_EQ(findings[0].items[0].lastOpened, std::nullopt);
    EXPECT_EQ(findings[1].items[0].lastOpened, old);
}

TEST_F(LargeAndOldTest, atMostThreeHundredLargeAndFourHundredOldFiles)
{
    const TimePoint old = kNow - kYear - 1h;
    const Cand one = cand("one", 0, old, old);
    std::vector<Cand> cands;
    for (int i = 0; i < 301; ++i)
        cands.push_back({home.path("l" + std::to_string(i)), 1'000'000'000 + i, kNow});
    for (int i = 0; i < 401; ++i)
        cands.push_back({one.path, 20'000'000 + i, old});
    const auto findings = largeAndOld(cands, 1'000'000'000, kNow, RecentDocuments());
    EXPECT_EQ(findings[0].items.size(), 300);
    EXPECT_EQ(findings[0].items.back().size, 1'000'000'001) << "the smallest is left out";
    EXPECT_EQ(findings[1].items.size(), 400);
    EXPECT_EQ(findings[1].items.back().size, 20'000'001);
}

} // namespace
} // namespace orlen

#include "clean/Persist.h"
#include "cli/Process.h"
#include "support/TempHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::Not;

constexpr std::int64_t kMega = 1'000'000;

} // namespace

TEST(GrewCommandTest, tellsWhatGrewSinceTheLastScanOrADay)
{
    const TempHome home;
    const auto reading = [&](const char* date, std::int64_t videos, std::int64_t cache) {
        return FolderReading{*timeFromIso(date),
                             kMega,
                             {{home.path(".cache"), cache * kMega}, {home.path("Videos"), videos * kMega}}};
    };
    EXPECT_EQ(orlen({"grew", "--json"}).document(), Json({{"folders", Json::array()}}));
    EXPECT_THAT(orlen({"grew"}).out, HasSubstr("no two scans"));

    ASSERT_TRUE(Persist::saveFolderReadings({reading("2026-01-01T12:00:00Z", 100, 50),
                                             reading("2026-02-01T12:00:00Z", 300, 90),
                                             reading("2026-03-01T12:00:00Z", 340, 80)})
                    .ok());
    EXPECT_EQ(orlen({"grew", "--json"}).document(),
              Json({{"since", "2026-02-01T12:00:00Z"},
                    {"folders", Json::array({{{"path", home.path("Videos")},
                                              {"bytes", 40 * kMega},
                                              {"before", 300 * kMega},
                                              {"now", 340 * kMega}}})}}));
    const Json since = orlen({"grew", "--since", "2026-01-15", "--json"}).document();
    EXPECT_EQ(since["since"], "2026-01-01T12:00:00Z");
    EXPECT_EQ(since["folders"].size(), 2U);
    const Process::Outcome shown = orlen({"grew", "--since", "2026-01-15"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_THAT(shown.out, HasSubstr("240 MB  340 MB  ~/Videos"));
    EXPECT_THAT(orlen({"grew"}).out, Not(HasSubstr(".cache")));
    EXPECT_THAT(orlen({"grew", "--since", "2026-03-02"}).out, HasSubstr("no two scans"));
    for (const char* day : {"yesterday", "2026-02-30", "2026", "\xff"})
        EXPECT_EQ(orlen({"grew", "--since", day}).status, 2) << day;
}

} // namespace orlen

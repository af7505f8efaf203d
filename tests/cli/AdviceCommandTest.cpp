#include "app/Sizes.h"
#include "cli/Process.h"
#include "support/TempHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::HasSubstr;
using testing::IsEmpty;

} // namespace

TEST(AdviceCommandTest, everyAdviceHasItsSizeReasonAndCommand)
{
    const TempHome home;
    EXPECT_THAT(orlen({"advice"}).out, HasSubstr("Nothing outside Orlen's reach"));
    EXPECT_EQ(orlen({"advice", "--json"}).document(), Json::array());

    home.file(home.outside("system/usr/bin/apt"));
    home.file(home.outside("system/usr/bin/snapper"));
    home.fileOfSize(home.outside("system/var/cache/apt/archives/a.deb"), 2'048 * kKiB);
    home.folder(home.outside("system/.snapshots"));
    const Json advice = orlen({"advice", "--json"}).document();
    ASSERT_EQ(advice.size(), 2U) << advice.dump();
    EXPECT_EQ(advice[0]["topic"], "apt-packages");
    EXPECT_EQ(advice[0]["path"], home.outside("system/var/cache/apt/archives"));
    EXPECT_EQ(advice[0]["size"], 2'048 * kKiB);
    EXPECT_EQ(advice[0]["complete"], true);
    EXPECT_EQ(advice[0]["command"], "sudo apt clean");
    EXPECT_EQ(advice[1]["complete"], false);
    EXPECT_FALSE(advice[1]["text"].empty());

    const Process::Outcome shown = orlen({"advice"});
    EXPECT_EQ(shown.status, 0);
    EXPECT_THAT(shown.out, HasSubstr("at least 2.1 MB outside Orlen's reach"));
    EXPECT_THAT(shown.out, HasSubstr("  sudo apt clean\n"));
    EXPECT_THAT(shown.out, HasSubstr("cannot be told"));
    EXPECT_THAT(shown.out, HasSubstr("Orlen runs none of these commands."));
    EXPECT_EQ(orlen({"advice", "extra"}).status, 2);
    const Process::Outcome interrupted = Process{{"advice", "--json"}}.runInterrupted();
    EXPECT_EQ(interrupted.status, 130);
    EXPECT_THAT(interrupted.out, IsEmpty());
}

} // namespace orlen

#include "tools/apps/UnitShutdown.h"

#include "tools/startup/StartupHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

FileEntry entryOf(const std::string& path)
{
    FileEntry entry;
    entry.path = path;
    return entry;
}

std::string unit(const StartupHome& home, const std::string& name)
{
    return home.file(".config/systemd/user/" + name,
                     "[Service]\nExecStart=/opt/run\n[Install]\nWantedBy=x.target\n");
}

} // namespace

TEST(UnitShutdownTest, onlyUnitsAreStoppedAndDisabled)
{
    const StartupHome home;
    home.tool("systemctl", "case \"$*\" in *is-active*) exit 3;; esac");
    const std::vector<FileEntry> entries = {
        entryOf(unit(home, "foo.service")), entryOf(unit(home, "foo.timer")),
        entryOf(unit(home, "foo.mount")), entryOf(unit(home, "-x.service")),
        entryOf(home.file(".config/foo.service"))};
    EXPECT_THAT(UnitShutdown::run(entries), IsEmpty());
    EXPECT_THAT(home.calls(),
                ElementsAre(HasSubstr("--user disable foo.service"), HasSubstr("--user stop foo.service"),
                            HasSubstr("is-active --quiet foo.service"), HasSubstr("--user disable foo.timer"),
                            HasSubstr("--user stop foo.timer"), HasSubstr("is-active --quiet foo.timer")));
}

TEST(UnitShutdownTest, whatStaysOnIsTold)
{
    const StartupHome home;
    const std::vector<FileEntry> entries = {entryOf(unit(home, "foo.service"))};
    home.tool("systemctl", "case \"$*\" in *stop*) exit 1;; esac");
    EXPECT_THAT(UnitShutdown::run(entries), ElementsAre("foo.service"));
    home.tool("systemctl", "exit 1");
    EXPECT_THAT(UnitShutdown::run(entries), ElementsAre("foo.service"));
}

TEST(UnitShutdownTest, withoutSystemdNothingIsTold)
{
    const StartupHome home;
    EXPECT_THAT(UnitShutdown::run(std::vector<FileEntry>{entryOf(unit(home, "foo.service"))}), IsEmpty());
}

} // namespace orlen

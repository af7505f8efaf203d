#include "tools/startup/PackageNames.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace orlen {

TEST(PackageNamesTest, filesAreFoundInTheListsOfEitherKind)
{
    const TempHome home;
    const auto system = [&](const std::string& path) { return home.outside("system") + path; };
    home.file(system("/var/lib/dpkg/info/sync:amd64.list"), "/.\n/usr\n/lib/systemd/user/sync.service\n");
    home.file(system("/var/lib/dpkg/info/sync.md5sums"), "/usr/bin/other\n");
    home.file(system("/var/lib/dpkg/info/tool.list"), "/usr/bin/tool");
    home.file(system("/var/lib/pacman/local/chat-beta-1.2-3/files"), "%FILES%\nusr/\nusr/bin/chat\n");
    const std::map<std::string, std::string> expected = {
        {system("/usr/lib/systemd/user/sync.service"), "sync"},
        {system("/bin/tool"), "tool"},
        {system("/usr/bin/tool"), "tool"},
        {system("/usr/bin/chat"), "chat-beta"},
    };
    EXPECT_EQ(PackageNames::of(Places::current(),
                               {system("/usr/lib/systemd/user/sync.service"), system("/bin/tool"),
                                system("/usr/bin/tool"), system("/usr/bin/chat"), system("/usr/bin/other"),
                                home.path("file"), ""}),
              expected);
}

} // namespace orlen

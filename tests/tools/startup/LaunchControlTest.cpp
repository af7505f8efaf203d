#include "tools/startup/LaunchControl.h"

#include "tools/startup/StartupHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

TEST(LaunchControlTest, ownItemsStandBeforeThoseOfAllUsersAndAgentsFirst)
{
    const StartupHome home;
    const char* plist = "<plist version=\"1.0\"><dict/></plist>";
    const char* unit = "[Service]\nExecStart=/opt/x\n[Install]\nWantedBy=default.target\n";
    const char* entry = "[Desktop Entry]\nExec=x\n";
    home.tool("systemctl", "exit 1");
    home.file("Library/LaunchAgents/z.plist", plist);
    home.file(home.outside("Library/LaunchAgents/a.plist"), plist);
    home.file(".config/systemd/user/y.service", unit);
    home.file(home.outside("system/usr/lib/systemd/user/b.service"), unit);
    home.link(home.outside("system/etc/systemd/user/default.target.wants/b.service"), "/x");
    home.file(".config/autostart/x.desktop", entry);
    home.file(home.outside("shared/autostart/c.desktop"), entry);
    home.file(".config/autostart/\xff.desktop", entry); // no document could name it
    std::vector<std::string> labels;
    for (const LaunchItem& item : LaunchControl::load())
        labels.push_back(item.label);
    EXPECT_THAT(labels, testing::ElementsAre("z", "y.service", "x", "a", "b.service", "c"));
}

TEST(LaunchControlTest, inAHomeFolderOfSomebodyElseNothingIsSwitched)
{
    const StartupHome home;
    home.tool("systemctl");
    const std::string path = home.file(".config/autostart/x.desktop", "[Desktop Entry]\nExec=x\n");
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    EXPECT_FALSE(LaunchControl::set({.label = "x", .source = LaunchSource::autostartEntry}, false));
    EXPECT_FALSE(LaunchControl::set({.label = "x.service", .source = LaunchSource::systemdUnit}, false));
    EXPECT_EQ(TempHome::content(path), "[Desktop Entry]\nExec=x\n");
    EXPECT_THAT(home.calls(), testing::IsEmpty());
}

} // namespace orlen

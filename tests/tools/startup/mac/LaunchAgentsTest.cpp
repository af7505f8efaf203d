#include "tools/startup/LaunchControl.h"
#include "tools/startup/StartupHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string plist(const std::string& content)
{
    return "<?xml version=\"1.0\" encoding=\"UTF-8\"?>\n<plist version=\"1.0\"><dict>" + content +
           "</dict></plist>\n";
}

std::string agentNamed(const std::string& label)
{
    return plist("<key>Label</key><string>" + label + "</string>");
}

struct Agents : StartupHome {
    [[nodiscard]] std::string own(const std::string& name, const std::string& text) const
    {
        return file("Library/LaunchAgents/" + name, text);
    }
    [[nodiscard]] std::string shared(const std::string& name, const std::string& text) const
    {
        return file(outside("Library/LaunchAgents/" + name), text);
    }
    [[nodiscard]] std::string domain() const { return "gui/" + std::to_string(Places::current().user); }
};

std::string shown(const LaunchItem& item)
{
    return item.label + " " + item.program + " " + std::string(item.scope.base()) +
           (item.enabled ? " on" : " off");
}

std::vector<std::string> loaded()
{
    std::vector<std::string> items;
    for (const LaunchItem& item : LaunchControl::load())
        items.push_back(shown(item));
    return items;
}

} // namespace

TEST(LaunchAgentsTest, agentsOfBothFoldersAreListedByFileName)
{
    const Agents home;
    home.tool("launchctl", "printf '%s\\n' 'disabled services = {' '\t\"own.off\" => disabled' "
                           "'\t\"shared.off\" => true' '\t\"own.on\" => enabled' '}'");
    const std::string path = home.own("b.plist", agentNamed("own.off"));
    (void)home.own("a.plist", plist("<key>Label</key><string>own.on</string><key>Program</key>"
                                    "<string>/opt/a</string><key>ProgramArguments</key>"
                                    "<array><string>/opt/other</string></array>"));
    (void)home.own("c.plist", plist("<key>ProgramArguments</key>"
                                    "<array><string>/opt/c</string><string>-q</string></array>"));
    (void)home.own("d.plist.bak", agentNamed("backup"));
    (void)home.own("e.plist", "no property list");
    (void)home.own("f.plist", "<plist version=\"1.0\"><array/></plist>");
    (void)home.shared("z.plist", agentNamed("shared.off"));
    (void)home.shared("y.plist", agentNamed("own.off"));
    EXPECT_THAT(loaded(), ElementsAre("own.on /opt/a Your account on", "own.off  Your account off",
                                      "c /opt/c Your account on", "own.off  All users off",
                                      "shared.off  All users off"));
    EXPECT_EQ(LaunchControl::load()[1].path, path);
    EXPECT_EQ(home.calls().front(), "launchctl: print-disabled " + home.domain());
}

TEST(LaunchAgentsTest, withoutTheToolEveryAgentIsOnAndNoneCanBeSwitched)
{
    const Agents home;
    EXPECT_THAT(LaunchControl::load(), IsEmpty());
    (void)home.own("a.plist", agentNamed("own"));
    ASSERT_THAT(loaded(), ElementsAre("own  Your account on"));
    EXPECT_FALSE(LaunchControl::load().front().isSwitchable);
    EXPECT_FALSE(LaunchControl::set(LaunchControl::load().front(), false));
}

TEST(LaunchAgentsTest, switchingRunsTheToolAsItsOrderSays)
{
    const Agents home;
    home.tool("launchctl", "[ \"$1\" != bootout ]");
    const LaunchItem item{.label = "org.example; agent"};
    EXPECT_TRUE(LaunchControl::set(item, true));
    EXPECT_THAT(home.calls(), ElementsAre("launchctl: enable " + home.domain() + "/org.example; agent"));
    home.forgetCalls();
    EXPECT_TRUE(LaunchControl::set(item, false));
    EXPECT_THAT(home.calls(), ElementsAre("launchctl: disable " + home.domain() + "/org.example; agent",
                                          "launchctl: bootout " + home.domain() + "/org.example; agent"));
    home.tool("launchctl", "exit 1");
    EXPECT_FALSE(LaunchControl::set(item, true));
    EXPECT_FALSE(LaunchControl::set(item, false));
    EXPECT_FALSE(LaunchControl::set(LaunchItem(), false)); // would name every agent of the login
}

} // namespace orlen

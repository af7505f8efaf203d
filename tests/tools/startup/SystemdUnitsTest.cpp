#include "platform/process/ChildProcess.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/ServiceManager.h"
#include "tools/startup/StartupHome.h"
#include "tools/startup/UnitFolders.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace orlen {

namespace {

using testing::Contains;
using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

constexpr const char* kUnit = "[Service]\nExecStart=/opt/run\n[Install]\nWantedBy=default.target\n";
constexpr const char* kStaticUnit = "[Service]\nExecStart=/opt/run\n";

struct Units : StartupHome {
    [[nodiscard]] std::string own(const std::string& name, const char* text = kUnit) const
    {
        return file(".config/systemd/user/" + name, text);
    }
    [[nodiscard]] std::string shared(const std::string& name, const char* text = kUnit) const
    {
        return file(outside("system/usr/lib/systemd/user/" + name), text);
    }
    /// A tool whose list of units is the text, and which refuses what the pattern of the shell matches.
    void manager(const std::string& list, const std::string& refused = "-") const
    {
        const std::string path = file(outside("list"), list + "\n");
        tool("systemctl", "case \"$*\" in *list-unit-files*) IFS= read -r list < '" + path +
                              "'; printf '%s\\n' \"$list\";; esac\ncase \"$*\" in " + refused +
                              ") exit 1;; esac");
    }
    [[nodiscard]] std::vector<std::string> changes() const
    {
        std::vector<std::string> lines = calls();
        std::erase_if(lines,
                      [](const std::string& line) { return line.find("list-unit") != std::string::npos; });
        return lines;
    }
};

std::vector<std::string> listedUnits()
{
    std::vector<std::string> items;
    for (const LaunchItem& item : makeSystemdUnits()->items())
        items.push_back(item.label + " " + std::string(item.scope.base()) + (item.enabled ? " on" : " off"));
    return items;
}

LaunchItem unit(const std::string& label, Text scope)
{
    return {.label = label, .scope = scope, .source = LaunchSource::systemdUnit};
}

std::string entry(const std::string& name, const std::string& state)
{
    return R"({"unit_file":")" + name + R"(","state":")" + state + R"("})";
}

} // namespace

TEST(SystemdUnitsTest, theManagersListIsSortedAndSifted)
{
    const Units home;
    std::string list;
    for (const char* state : {"enabled", "enabled-runtime", "linked", "disabled", "masked", "static",
                              "indirect", "generated", "transient", "alias", "bad"}) {
        (void)home.own(std::string("own-") + state + ".service");
        (void)home.shared(std::string("shared-") + state + ".service");
        list += entry(std::string("shared-") + state + ".service", state) + "," +
                entry(std::string("own-") + state + ".service", state) + ",";
    }
    (void)home.own("many@.service");
    (void)home.own("--now.service");
    home.manager("[" + list + entry("many@.service", "enabled") + "," + entry("--now.service", "enabled") +
                 "," + entry("../escape.service", "enabled") + "," + entry("gone.service", "enabled") + "," +
                 entry("own-masked.service", "enabled") + "]");
    EXPECT_THAT(
        listedUnits(),
        ElementsAre("own-disabled.service Your account off", "own-enabled-runtime.service Your account on",
                    "own-enabled.service Your account on", "own-linked.service Your account off",
                    "own-masked.service Your account off", "shared-enabled-runtime.service All users on",
                    "shared-enabled.service All users on", "shared-masked.service All users off"));
    EXPECT_THAT(home.calls(),
                ElementsAre("systemctl: --user list-unit-files --type=service,timer,socket,path "
                            "--output=json --no-pager"));
}

TEST(SystemdUnitsTest, anItemDescribesItsUnit)
{
    const Units home;
    const std::string path = home.shared("pipewire-pulse.service");
    home.link(".config/systemd/user/pipewire-pulse.service", "/dev/null");
    home.manager("[" + entry("pipewire-pulse.service", "masked") + "]");
    LaunchItem expected{"pipewire-pulse.service", path,  "/opt/run",
                        ToolsTexts::kAllUsers,    false, LaunchSource::systemdUnit,
                        "pipewire-pulse.service", true};
    expected.command = "/opt/run";
    EXPECT_THAT(makeSystemdUnits()->items(), ElementsAre(expected));
}

TEST(SystemdUnitsTest, timersSocketsAndPathsTellWhatTheyStart)
{
    const Units home;
    const auto path = [&](const std::string& name, const std::string& section) {
        return home.own(name, (section + "\n[Install]\nWantedBy=default.target\n").c_str());
    };
    (void)path("backup.timer", "[Unit]\nDescription=Nightly\n[Timer]\nOnCalendar=daily");
    (void)path("mail.socket", "[Socket]\nService=post.service");
    (void)path("inbox.path", "[Path]\nUnit=missing.service");
    (void)home.own("backup.service", "[Service]\nExecStart=/opt/back up -q\n");
    (void)home.own("post.service", "[Service]\nExecStart=-/opt/post --all\n");
    home.manager("[" + entry("backup.timer", "enabled") + "," + entry("mail.socket", "disabled") + "," +
                 entry("inbox.path", "enabled") + "," + entry("a.mount", "enabled") + "]");
    std::vector<std::string> told;
    for (const LaunchItem& item : makeSystemdUnits()->items())
        told.push_back(item.label + " " + rawValue(item.kind()) + " " + item.command);
    EXPECT_THAT(told, ElementsAre("backup.timer timer /opt/back up -q", "inbox.path path ",
                                  "mail.socket socket /opt/post --all"));
}

TEST(SystemdUnitsTest, enabledInstancesOfTemplatesAreSwitchedOneByOne)
{
    const Units home;
    (void)home.shared("sync@.service", "[Unit]\nDescription=Sync for %i\n[Service]\nExecStart=/opt/sync %i\n"
                                       "[Install]\nWantedBy=default.target\n");
    const std::string wants = ".config/systemd/user/default.target.wants/";
    for (const char* name : {"sync@anna.service", "sync@bert.service", "gone@x.service"})
        home.link(wants + name, "/usr/lib/systemd/user/sync@.service");
    for (const bool isAnswering : {true, false}) {
        SCOPED_TRACE(isAnswering ? "systemd answers" : "no answer");
        isAnswering ? home.manager("[" + entry("sync@.service", "enabled") + "]")
                    : home.tool("systemctl", "exit 1");
        const std::vector<LaunchItem> items = makeSystemdUnits()->items();
        ASSERT_EQ(items.size(), 2U);
        EXPECT_EQ(items[1].label, "sync@bert.service");
        EXPECT_EQ(items[1].path, home.path(wants + "sync@bert.service"));
        EXPECT_EQ(items[1].command, "/opt/sync bert");
        EXPECT_EQ(items[1].description, "Sync for bert");
        EXPECT_EQ(items[1].scope, ToolsTexts::kYourAccount);
        EXPECT_TRUE(items[1].enabled && items[1].isSwitchable);
    }
    home.manager("[]");
    home.forgetCalls();
    EXPECT_TRUE(makeSystemdUnits()->set(makeSystemdUnits()->items().front(), false));
    EXPECT_THAT(home.changes(), ElementsAre("systemctl: --user disable sync@anna.service",
                                            "systemctl: --user stop sync@anna.service"));
}

TEST(SystemdUnitsTest, aSwitchThatCannotWorkSaysWhy)
{
    const Units home;
    (void)home.own("idle.service", kStaticUnit);
    (void)home.own("held.service");
    home.link(home.outside("system/etc/systemd/user/default.target.wants/held.service"), "/missing");
    home.manager("[" + entry("idle.service", "linked") + "," + entry("held.service", "enabled") + "]");
    const std::vector<LaunchItem> items = makeSystemdUnits()->items();
    ASSERT_EQ(items.size(), 2U);
    EXPECT_EQ(items[0].reason, ToolsTexts::kHeldByOwnFile);
    EXPECT_EQ(items[1].reason, ToolsTexts::kNeverStarts);

    std::remove(home.outside("bin/systemctl").c_str());
    home.folder(home.outside("system/run/systemd/system"));
    for (const LaunchItem& item : makeSystemdUnits()->items())
        EXPECT_EQ(item.reason, ToolsTexts::kNoUnitTool) << item.label;
}

TEST(SystemdUnitsTest, withoutAnAnswerTheFilesAreRead)
{
    const Units home;
    (void)home.own("off.service");
    (void)home.own("on.service");
    (void)home.own("static.service", kStaticUnit);
    (void)home.own("static-on.service", kStaticUnit);
    (void)home.own("file-not-link.service");
    home.link(".config/systemd/user/alias.service", home.path(".config/systemd/user/on.service"));
    home.link(".config/systemd/user/linked.service", home.file("project/linked.service", kUnit));
    home.file(".local/share/systemd/user/data.service", kUnit);
    home.link(".config/systemd/user/default.target.wants/on.service", "../on.service");
    home.link(".config/systemd/user/default.target.wants/static-on.service", "../static-on.service");
    home.link(".config/systemd/user/other.target.requires/data.service", "/missing/data.service");
    home.link(".config/systemd/user/elsewhere/off.service", "../off.service");
    home.file(".config/systemd/user/default.target.wants/file-not-link.service");
    (void)home.shared("unwanted.service");
    (void)home.shared("wanted.service");
    (void)home.shared("masked.service");
    (void)home.shared("part.service", kStaticUnit);
    home.link(home.outside("system/etc/systemd/user/default.target.wants/wanted.service"), "/missing");
    home.link(home.outside("system/usr/lib/systemd/user/default.target.wants/part.service"),
              "../part.service");
    home.link(".config/systemd/user/masked.service", "/dev/null");
    home.link(".config/systemd/user/nothing-behind-it.service", "/dev/null");
    const std::vector<std::string> expected = {
        "data.service Your account on",    "file-not-link.service Your account off",
        "linked.service Your account off", "off.service Your account off",
        "on.service Your account on",      "static-on.service Your account on",
        "masked.service All users off",    "wanted.service All users on",
    };
    for (const char* script : {"exit 1", "echo nonsense", "printf '\\377'", "kill -9 $$"}) {
        SCOPED_TRACE(script);
        home.tool("systemctl", script);
        EXPECT_THAT(listedUnits(), ElementsAreArray(expected));
    }
    std::remove(home.outside("bin/systemctl").c_str());
    EXPECT_THAT(listedUnits(), IsEmpty()); // nothing says that a service manager is in use
    home.folder(home.outside("system/run/systemd/system"));
    EXPECT_THAT(listedUnits(), ElementsAreArray(expected));
}

TEST(SystemdUnitsTest, switchingRunsTheToolAsItsOrderSays)
{
    struct Case {
        const char* name;
        LaunchItem item;
        bool enabled;
        const char* refused;
        std::vector<std::string> calls;
        bool isDone;
    };
    const LaunchItem own = unit("a.service", ToolsTexts::kYourAccount);
    const LaunchItem shared = unit("b.service", ToolsTexts::kAllUsers);
    const LaunchItem masked = unit("c.service", ToolsTexts::kAllUsers);
    const LaunchItem chosen = unit("e.service", ToolsTexts::kAllUsers);
    const LaunchItem twice = unit("f.service", ToolsTexts::kYourAccount);
    const LaunchItem covered = unit("d.service", ToolsTexts::kAllUsers);
    const auto live = [](const std::string& call) { return "systemctl: --user " + call; };
    const auto offline = [](const std::string& call) { return "systemctl offline: --user " + call; };
    const Case cases[] = {
        {"own off", own, false, "-", {live("disable a.service"), live("stop a.service")}, true},
        {"stop refused", own, false, "*stop*", {live("disable a.service"), live("stop a.service")}, true},
        {"own on", own, true, "-", {live("enable a.service")}, true},
        {"shared off", shared, false, "-", {live("mask b.service"), live("stop b.service")}, true},
        {"shared on", shared, true, "-", {live("enable b.service")}, true},
        {"masked on", masked, true, "-", {live("unmask c.service")}, true},
        {"own file", covered, false, "-", {live("disable d.service"), live("stop d.service")}, true},
        {"own choice", chosen, false, "-", {live("disable e.service"), live("stop e.service")}, true},
        {"for everybody too",
         twice,
         false,
         "-",
         {live("disable f.service"), live("mask f.service"), live("stop f.service")},
         true},
        {"nothing works", own, false, "*", {live("disable a.service"), offline("disable a.service")}, false},
        {"an option", unit("--now.service", ToolsTexts::kYourAccount), false, "-", {}, false},
        {"a path", unit("../a.service", ToolsTexts::kYourAccount), true, "-", {}, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const Units home;
        (void)home.own("d.service");
        home.link(".config/systemd/user/c.service", "/dev/null");
        for (const char* link : {".config/systemd/user/default.target.wants/e.service",
                                 ".config/systemd/user/default.target.wants/f.service",
                                 "../system/etc/systemd/user/default.target.wants/f.service"})
            home.link(link, "/usr/lib/systemd/user/any.service");
        home.manager("[]", c.refused);
        EXPECT_EQ(makeSystemdUnits()->set(c.item, c.enabled), c.isDone);
        EXPECT_EQ(home.changes(), c.calls);
    }
}

TEST(SystemdUnitsTest, withoutABusTheFilesAreChangedAndNothingIsStopped)
{
    const Units home;
    home.tool("systemctl", "[ -n \"$SYSTEMD_OFFLINE\" ]");
    EXPECT_TRUE(makeSystemdUnits()->set(unit("b.service", ToolsTexts::kAllUsers), false));
    EXPECT_THAT(home.changes(),
                ElementsAre("systemctl: --user mask b.service", "systemctl offline: --user mask b.service"));
}

TEST(SystemdUnitsTest, whatIsMaskedElsewhereHasNoSwitch)
{
    const Units home;
    (void)home.shared("a.service");
    home.link(home.outside("system/etc/systemd/user/a.service"), "/dev/null");
    home.manager("[" + entry("a.service", "masked") + "]");
    const std::vector<LaunchItem> items = makeSystemdUnits()->items();
    ASSERT_EQ(items.size(), 1U);
    EXPECT_FALSE(items[0].isSwitchable);
    EXPECT_FALSE(items[0].reason.empty());
}

TEST(SystemdUnitsTest, aLinkedUnitKeepsItsLink)
{
    const std::string folder = ".config/systemd/user/";
    const std::string text = std::string(kUnit) + "Alias=orlen-test-other.service\n";
    for (const bool isReal : {false, true}) {
        SCOPED_TRACE(isReal ? "the real tool" : "no answer");
        const Units home;
        const std::string file = home.file("project/orlen-test.service", text.c_str());
        const std::string link = home.path(folder + "orlen-test.service");
        const std::string wants = home.path(folder + "default.target.wants/orlen-test.service");
        const std::string alias = home.path(folder + "orlen-test-other.service");
        if (isReal) {
            TempHome::useSystemTools();
            TempHome::setVariable("SYSTEMD_OFFLINE", "1");
            const auto enabled = ChildProcess::run({{"systemctl", "--user", "enable", file}, {}});
            if (!enabled || enabled->status != 0)
                GTEST_SKIP() << "there is no systemctl that works on files";
        } else {
            home.tool("systemctl", "exit 1");
            for (const std::string& path : {link, wants, alias})
                home.link(path, file);
        }
        ASSERT_THAT(listedUnits(), Contains("orlen-test.service Your account on"));
        const auto manager = makeSystemdUnits();
        EXPECT_TRUE(manager->set(unit("orlen-test.service", ToolsTexts::kYourAccount), false));
        EXPECT_TRUE(TempHome::exists(link));
        EXPECT_FALSE(TempHome::exists(wants));
        EXPECT_FALSE(TempHome::exists(alias));
        EXPECT_EQ(TempHome::content(file), text);
        EXPECT_THAT(listedUnits(), ElementsAre("orlen-test.service Your account off"));
        EXPECT_EQ(manager->set(unit("orlen-test.service", ToolsTexts::kYourAccount), true), isReal);
        EXPECT_EQ(TempHome::exists(wants), isReal);
    }
}

TEST(SystemdUnitsTest, theRealToolAndTheLinksAgree)
{
    const Units home;
    TempHome::useSystemTools();
    TempHome::setVariable("SYSTEMD_OFFLINE", "1");
    const auto systemctl = [](const std::vector<std::string>& arguments) {
        std::vector<std::string> all{"systemctl", "--user"};
        all.insert(all.end(), arguments.begin(), arguments.end());
        const auto outcome = ChildProcess::run({all, {}});
        return outcome && outcome->status == 0;
    };
    if (!systemctl({"list-unit-files", "--output=json"}))
        GTEST_SKIP() << "there is no systemctl that works on files";
    const std::string requiring = std::string(kStaticUnit) + "[Install]\nRequiredBy=basic.target\n";
    const std::string alias = std::string(kStaticUnit) + "[Install]\nAlias=orlen-test-other.service\n";
    const std::string also = std::string(kStaticUnit) + "[Install]\nAlso=orlen-test-on.service\n";
    for (const char* name : {"on", "off", "masked"})
        (void)home.own("orlen-test-" + std::string(name) + ".service");
    (void)home.own("orlen-test-static.service", kStaticUnit);
    (void)home.own("orlen-test-many@.service");
    (void)home.own("orlen-test-required.service", requiring.c_str());
    (void)home.own("orlen-test-alias.service", alias.c_str());
    (void)home.own("orlen-test-also.service", also.c_str());
    (void)home.own("orlen-test-empty.service", "");
    home.file(".local/share/systemd/user/orlen-test-data.service", kUnit);
    home.file(".local/share/systemd/user/orlen-test-hidden.service", kUnit);
    const std::string outside = home.file("project/orlen-test-linked.service", kUnit);
    ASSERT_TRUE(systemctl({"enable", "orlen-test-on.service", "orlen-test-required.service",
                           "orlen-test-alias.service", "orlen-test-data.service"}));
    ASSERT_TRUE(systemctl({"mask", "orlen-test-hidden.service"}));
    ASSERT_TRUE(systemctl({"link", outside}));
    const std::vector<std::string> told = listedUnits();
    EXPECT_THAT(told, Contains("orlen-test-alias.service Your account on"));
    EXPECT_THAT(told, Contains("orlen-test-hidden.service Your account off"));
    home.tool("systemctl", "exit 1");
    EXPECT_EQ(listedUnits(), told);
}

TEST(SystemdUnitsTest, theRealToolSwitchesOffAndOnAgain)
{
    const Units home;
    TempHome::useSystemTools();
    TempHome::setVariable("SYSTEMD_OFFLINE", "1");
    if (ChildProcess::programPath("systemctl").empty())
        GTEST_SKIP() << "there is no systemctl";
    const std::string link = home.path(".config/systemd/user/default.target.wants/orlen-test.service");
    (void)home.own("orlen-test.service");
    const auto manager = makeSystemdUnits();
    const LaunchItem own = unit("orlen-test.service", ToolsTexts::kYourAccount);
    EXPECT_TRUE(manager->set(own, true));
    EXPECT_TRUE(TempHome::exists(link));
    EXPECT_TRUE(manager->set(own, false));
    EXPECT_FALSE(TempHome::exists(link));
    EXPECT_EQ(TempHome::content(home.path(".config/systemd/user/orlen-test.service")), kUnit);

    const LaunchItem shared = unit("orlen-test-shared.service", ToolsTexts::kAllUsers);
    const std::string mask = home.path(".config/systemd/user/orlen-test-shared.service");
    EXPECT_TRUE(manager->set(shared, false));
    EXPECT_TRUE(UnitFolders::isMaskedByUser(Places::current(), shared.label));
    EXPECT_TRUE(manager->set(shared, true));
    EXPECT_FALSE(TempHome::exists(mask));
    EXPECT_FALSE(manager->set(unit("orlen-test-missing.service", ToolsTexts::kYourAccount), true));
}

TEST(SystemdUnitsTest, theFoldersComeInTheOrderOfTheRealManager)
{
    const Units home;
    TempHome::useSystemTools();
    const auto paths = ChildProcess::run({{"systemd-analyze", "--user", "unit-paths"}, {}});
    if (!paths || paths->status != 0)
        GTEST_SKIP() << "there is no systemd-analyze";
    std::vector<std::string> real;
    std::istringstream lines(paths->output);
    for (std::string line; std::getline(lines, line);)
        real.push_back(line);
    TempHome::reloadPlaces([](Places& places) { places.systemRoot.clear(); });
    auto from = real.begin();
    for (const std::string& folder : UnitFolders::all(Places::current())) {
        SCOPED_TRACE(folder);
        if (folder == "/lib/systemd/user")
            continue; // the same folder as below "/usr" wherever there is a manager of today
        from = std::find(from, real.end(), folder);
        ASSERT_NE(from, real.end());
    }
}

} // namespace orlen

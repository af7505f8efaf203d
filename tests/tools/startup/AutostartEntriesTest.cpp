#include "platform/desktop/DesktopEntry.h"
#include "platform/process/ChildProcess.h"
#include "tools/ToolsTexts.h"
#include "tools/startup/DesktopNames.h"
#include "tools/startup/ServiceManager.h"
#include "tools/startup/SessionUnitName.h"
#include "tools/startup/StartupHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>
#include <unistd.h>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::string entryText(const std::string& more = {})
{
    return "# by hand\n[Desktop Entry]\nType=Application\nName=Chat\nName[de]=Plausch\n"
           "Exec=\"/opt/My Chat/chat\" --hide %U\n" +
           more + "\n[Desktop Action New]\nName=New\nExec=/opt/chat --new\n";
}

struct Entries : StartupHome {
    std::string own(const std::string& name, const std::string& text = entryText()) const
    {
        return file(".config/autostart/" + name, text);
    }
    std::string shared(const std::string& name, const std::string& text = entryText()) const
    {
        return file(outside("shared/autostart/" + name), text);
    }
};

std::vector<LaunchItem> items()
{
    return makeAutostartEntries()->items();
}

std::vector<std::string> listedEntries()
{
    std::vector<std::string> lines;
    for (const LaunchItem& item : items())
        lines.push_back(item.label + " " + std::string(item.scope.base()) + (item.enabled ? " on" : " off"));
    return lines;
}

bool set(const LaunchItem& item, bool enabled)
{
    return makeAutostartEntries()->set(item, enabled);
}

unsigned modeOf(const std::string& path)
{
    struct stat status {};
    return ::lstat(path.c_str(), &status) == 0 ? status.st_mode & 07777U : 0;
}

} // namespace

TEST(AutostartEntriesTest, anItemDescribesItsEntry)
{
    const Entries home;
    TempHome::setVariable("LANGUAGE", "de_AT");
    home.settle();
    const std::string path = home.own("org.example.Chat.desktop");
    const std::string wide = home.shared("at-spi-dbus-bus.desktop", "[Desktop Entry]\nExec=env A=b spi\n");
    std::vector<LaunchItem> told = items();
    ASSERT_EQ(told.size(), 2U);
    EXPECT_EQ(told[1].command, "env A=b spi");
    for (LaunchItem& item : told)
        item.command.clear();
    EXPECT_THAT(
        told, ElementsAre(LaunchItem{"org.example.Chat", path, "/opt/My Chat/chat", ToolsTexts::kYourAccount,
                                     true, LaunchSource::autostartEntry, "Plausch", false},
                          LaunchItem{"at-spi-dbus-bus", wide, "spi", ToolsTexts::kAllUsers, true,
                                     LaunchSource::autostartEntry, "at-spi-dbus-bus", true}));
}

TEST(AutostartEntriesTest, keysDecideWhetherAnEntryIsShownAndOn)
{
    struct Case {
        const char* keys;
        const char* desktop;
        const char* expected; ///< "" for what is not shown
    };
    const Case cases[] = {
        {"Hidden=true", "", "off"},
        {"Hidden=false", "", "on"},
        {"Hidden=1", "", "on"},
        {"X-GNOME-Autostart-enabled=false", "", "off"},
        {"X-MATE-Autostart-enabled=false", "", "off"},
        {"Hidden=false\nX-GNOME-Autostart-enabled=true\nX-MATE-Autostart-enabled=true", "", "on"},
        {"X-GNOME-Autostart-Phase=Initialization", "", ""},
        {"X-GNOME-HiddenUnderSystemd=true", "", ""},
        {"X-GNOME-HiddenUnderSystemd=false", "", "on"},
        {"X-systemd-skip=true", "", ""},
        {"TryExec=orlen-missing", "", ""},
        {"TryExec=there", "", "on"},
        {"OnlyShowIn=GNOME;", "", "on"},
        {"OnlyShowIn=GNOME;", "KDE", ""},
        {"OnlyShowIn=GNOME;KDE;", "KDE", "on"},
        {"OnlyShowIn=GNOME;", "ubuntu:GNOME", "on"},
        {"OnlyShowIn=", "GNOME", ""},
        {"NotShowIn=GNOME;", "ubuntu:GNOME", ""},
        {"NotShowIn=GNOME;", "KDE", "on"},
        {"OnlyShowIn=ubuntu;\nNotShowIn=GNOME;", "ubuntu:GNOME", "on"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(std::string(c.keys) + " in " + c.desktop);
        const Entries home;
        home.tool("there");
        TempHome::setVariable("XDG_CURRENT_DESKTOP", c.desktop);
        home.own("a.desktop", entryText(c.keys));
        const std::string expected(c.expected);
        if (expected.empty())
            EXPECT_THAT(listedEntries(), IsEmpty());
        else
            EXPECT_THAT(listedEntries(), ElementsAre("a Your account " + expected));
    }
}

TEST(AutostartEntriesTest, theFirstFileOfANameCountsAndWhatIsNoEntryIsLeftOut)
{
    const Entries home;
    home.own("b.desktop", entryText("Hidden=true"));
    home.shared("b.desktop");
    home.shared("a.desktop");
    home.own("broken.desktop", "no entry");
    home.shared("broken.desktop");
    home.own("long.desktop", entryText(std::string(DesktopEntry::kSizeLimit, '#')));
    home.folder(".config/autostart/folder.desktop");
    home.link(".config/autostart/dangling.desktop", "/missing");
    home.link(".config/autostart/linked.desktop", home.file("chat.desktop", entryText()));
    home.own("a.desktop.bak");
    home.own(".desktop");
    EXPECT_THAT(listedEntries(),
                ElementsAre("b Your account off", "linked Your account on", "a All users on"));
    // The whole folder may be kept elsewhere.
    const Entries other;
    other.file("dotfiles/c.desktop", entryText());
    other.link(".config/autostart", other.path("dotfiles"));
    EXPECT_THAT(listedEntries(), ElementsAre("c Your account on"));
}

TEST(AutostartEntriesTest, theUsersOwnEntryKeepsItsOtherLines)
{
    const Entries home;
    const std::string keys = "X-GNOME-Autostart-enabled=true\n";
    const std::string path = home.own("chat.desktop", entryText(keys));
    TempHome::setMode(path, 0640);
    const LaunchItem item = items().front();
    EXPECT_TRUE(set(item, false));
    std::string off = entryText(keys);
    off.insert(off.find("Type="), "Hidden=true\n");
    EXPECT_EQ(TempHome::content(path), off);
    EXPECT_EQ(modeOf(path), 0640U);
    EXPECT_THAT(listedEntries(), ElementsAre("chat Your account off"));
    EXPECT_TRUE(set(item, false));
    EXPECT_EQ(TempHome::content(path), off);
    EXPECT_TRUE(set(item, true));
    EXPECT_THAT(listedEntries(), ElementsAre("chat Your account on"));

    // Other programs have switches of their own.
    home.own("chat.desktop", entryText("X-GNOME-Autostart-enabled=false\nX-MATE-Autostart-enabled=false"));
    EXPECT_TRUE(set(item, true));
    EXPECT_THAT(listedEntries(), ElementsAre("chat Your account on"));
    EXPECT_EQ(std::system(
                  ("test \"$(/bin/ls -A '" + home.path(".config/autostart") + "')\" = chat.desktop").c_str()),
              0);
}

TEST(AutostartEntriesTest, anEntryOfAllUsersIsCoveredAndUncovered)
{
    const Entries home;
    const std::string path = home.shared("chat.desktop");
    const std::string copy = home.path(".config/autostart/chat.desktop");
    const LaunchItem before = items().front();
    EXPECT_TRUE(set(before, false));
    const auto written = DesktopEntry::read(copy);
    ASSERT_TRUE(written);
    EXPECT_EQ(written->flag("Hidden"), true);
    EXPECT_EQ(written->flag("X-Orlen-Override"), true);
    EXPECT_EQ(written->text("Name"), "Chat");
    EXPECT_EQ(TempHome::content(path), entryText());
    // It is the same item, off.
    LaunchItem off = before;
    off.enabled = false;
    EXPECT_THAT(items(), ElementsAre(off));
    EXPECT_TRUE(set(off, true));
    EXPECT_FALSE(TempHome::exists(copy));
    EXPECT_THAT(items(), ElementsAre(before));
    EXPECT_TRUE(set(before, true));

    EXPECT_TRUE(set(before, false));
    std::remove(path.c_str());
    EXPECT_THAT(items(), IsEmpty()); // the program is gone, and what covered its entry covers nothing
}

TEST(AutostartEntriesTest, anEntryThatIsOffForAllUsersIsSwitchedOnByACopy)
{
    for (const char* key : {"Hidden=true", "X-GNOME-Autostart-enabled=false"}) {
        SCOPED_TRACE(key);
        const Entries home;
        const std::string path = home.shared("chat.desktop", entryText(key));
        const std::string copy = home.path(".config/autostart/chat.desktop");
        const LaunchItem off = items().front();
        EXPECT_TRUE(set(off, false));
        EXPECT_FALSE(TempHome::exists(copy)) << "nothing to do";
        EXPECT_TRUE(set(off, true));
        LaunchItem on = off;
        on.enabled = true;
        EXPECT_THAT(items(), ElementsAre(on));
        EXPECT_EQ(TempHome::content(path), entryText(key));
        EXPECT_TRUE(set(on, true));
        EXPECT_THAT(items(), ElementsAre(on));
        EXPECT_TRUE(set(on, false));
        EXPECT_FALSE(TempHome::exists(copy));
        EXPECT_THAT(items(), ElementsAre(off));
    }
}

TEST(AutostartEntriesTest, whatCannotBeSwitchedSaysWhy)
{
    const Entries home;
    home.own("a.desktop");
    home.link(".config/autostart/b.desktop", home.file("dotfiles/b.desktop", entryText()));
    const std::string others = home.own("c.desktop");
    const bool isGivenAway = ::chown(others.c_str(), Places::current().user + 1, gid_t(-1)) == 0;
    std::vector<bool> switchable;
    for (const LaunchItem& item : items()) {
        switchable.push_back(item.isSwitchable);
        EXPECT_EQ(item.reason.empty(), item.isSwitchable) << item.label;
    }
    EXPECT_THAT(switchable, ElementsAre(true, false, !isGivenAway)); // only root can give files away
}

TEST(AutostartEntriesTest, whatIsNotThisProgramsToChangeStays)
{
    const Entries home;
    const LaunchItem item{.label = "chat", .source = LaunchSource::autostartEntry};
    const auto refuses = [&](const char* name, bool enabled) {
        SCOPED_TRACE(name);
        EXPECT_FALSE(set(item, enabled));
    };
    refuses("missing, off", false);
    refuses("missing, on", true);
    const std::string target = home.file("dotfiles/chat.desktop", entryText("Hidden=false"));
    home.link(".config/autostart/chat.desktop", target);
    refuses("a link, off", false);
    refuses("a link, on", true);
    EXPECT_EQ(TempHome::content(target), entryText("Hidden=false"));
    std::remove(home.path(".config/autostart/chat.desktop").c_str());

    home.link(".config/autostart/chat.desktop", "/missing");
    home.shared("chat.desktop");
    refuses("a dangling link before an entry of all users", false);
    std::remove(home.path(".config/autostart/chat.desktop").c_str());
    EXPECT_FALSE(set({.label = "../chat", .source = LaunchSource::autostartEntry}, false));

    home.own("chat.desktop", "no entry");
    refuses("no entry", false);
    EXPECT_EQ(TempHome::content(home.path(".config/autostart/chat.desktop")), "no entry");

    const std::string locked = home.own("chat.desktop");
    TempHome::setMode(home.path(".config/autostart"), 0500);
    refuses("a folder that cannot be written to", false);
    EXPECT_EQ(TempHome::content(locked), entryText());
}

TEST(AutostartEntriesTest, onlyAnActiveUnitOfTheEntryIsStopped)
{
    const Entries home;
    home.own("my-chat.desktop");
    const LaunchItem item = items().front();
    home.tool("systemctl", "[ \"$2\" != is-active ]");
    EXPECT_TRUE(set(item, false));
    const std::string unit = "app-my\\x2dchat@autostart.service";
    EXPECT_EQ(home.calls().size(), 1U);
    EXPECT_TRUE(set(item, true));
    EXPECT_EQ(home.calls().size(), 1U);
    home.tool("systemctl");
    home.forgetCalls();
    EXPECT_TRUE(set(item, false));
    EXPECT_THAT(home.calls(), testing::SizeIs(2));
    EXPECT_THAT(home.calls().back(), testing::HasSubstr("--user stop app-my"));
}

TEST(AutostartEntriesTest, unitNamesAreEscapedAsTheRealToolDoes)
{
    EXPECT_EQ(SessionUnitName::ofEntry("my-chat"), "app-my\\x2dchat@autostart.service");
    const StartupHome home;
    TempHome::useSystemTools();
    if (ChildProcess::programPath("systemd-escape").empty())
        GTEST_SKIP() << "there is no systemd-escape";
    for (const char* label :
         {"org.example.Chat", ".hidden-", "a b@c:d_e\\f", "Plausch \xc3\xa4", "%h~+,\"'"}) {
        SCOPED_TRACE(label);
        const auto escaped = ChildProcess::run({{"systemd-escape", "--", label}, {}});
        ASSERT_TRUE(escaped);
        const std::string name = escaped->output.substr(0, escaped->output.size() - 1);
        EXPECT_EQ(SessionUnitName::ofEntry(label), "app-" + name + "@autostart.service");
    }
}

TEST(DesktopNamesTest, shortNamesBeginNoOthers)
{
    for (const char* part : {"mako", "mako.service", "waybar.service", "gcr-ssh-agent.service", "xdg-portal",
                             "org.gnome.SettingsDaemon.Power"})
        EXPECT_TRUE(DesktopNames::isPartOfDesktop(part)) << part;
    for (const char* other : {"makoto", "waybar-weather.service", "gcr", "org.gnome.Settings", ".service"})
        EXPECT_FALSE(DesktopNames::isPartOfDesktop(other)) << other;
}

TEST(AutostartEntriesTest, desktopsAcceptWhatIsWritten)
{
    const Entries home;
    TempHome::useSystemTools();
    if (ChildProcess::programPath("desktop-file-validate").empty())
        GTEST_SKIP() << "there is no desktop-file-validate";
    home.tool("systemctl", "exit 1");
    home.own("own.desktop", "[Desktop Entry]\nType=Application\nName=Chat\nExec=chat\n");
    home.shared("shared.desktop", "[Desktop Entry]\nType=Application\nName=Chat\nExec=chat\nHidden=false\n");
    for (const LaunchItem& item : items()) {
        SCOPED_TRACE(item.label);
        ASSERT_TRUE(set(item, false));
        const std::string path = home.path(".config/autostart/" + item.label + ".desktop");
        const auto verdict = ChildProcess::run({{"desktop-file-validate", path}, {}});
        ASSERT_TRUE(verdict);
        EXPECT_EQ(verdict->status, 0) << verdict->output;
    }
}

} // namespace orlen

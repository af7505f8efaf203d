#include "app/Sizes.h"
#include "clean/Persist.h"
#include "cli/Process.h"
#include "platform/values/Time.h"
#include "tools/apps/AppHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

/// An AppImage with settings, and a folder of settings that is nobody's.
struct InstalledHome : AppHome {
    InstalledHome()
    {
        // The program sees the real folders for all users: nothing here may have a name that is found there.
        launcher(".local/share/applications/org.fooqux.Fooqux.desktop", "Foo Qux", installed);
        fileOfSize(".config/org.fooqux.Fooqux/settings", 8 * kKiB);
        fileOfSize(".cache/foo-qux/x", 16 * kKiB);
        fileOfSize(".cache/other/x", 16 * kKiB);
    }

    [[nodiscard]] bool isUntouched() const
    {
        return exists(installed) && exists(path(".cache/foo-qux")) &&
               exists(path(".config/org.fooqux.Fooqux"));
    }

    const std::string installed = image("Applications/Fooqux-1.0.AppImage");
};

} // namespace

TEST(AppsCommandTest, theApplicationsAreListedWithTheirSizes)
{
    const InstalledHome home;
    home.file("opt/b\x1b[31mox/AppRun");
    home.file(".local/share/gnome-shell/application_state",
              "<application-state><context id=''><application id='org.fooqux.Fooqux.desktop' "
              "last-seen='1577880000'/></context></application-state>");
    const Json apps = orlen({"apps", "--json"}).document();
    const Json image = {
        {"path", home.installed}, {"name", "Foo Qux"},    {"bundleID", "org.fooqux.Fooqux"},
        {"size", 4 * kKiB},       {"dataSize", 8 * kKiB}, {"lastUsed", "2020-01-01T12:00:00Z"}};
    bool isListed = false;
    for (const Json& app : apps)
        isListed = isListed || app.dump() == image.dump();
    EXPECT_TRUE(isListed) << apps.dump();

    const Process::Outcome outcome = orlen({"apps"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.out, HasSubstr("Foo Qux"));
    EXPECT_THAT(outcome.out, HasSubstr("1/1/20  AppImage  ~/Applications/Fooqux-1.0.AppImage\n"));
    EXPECT_THAT(outcome.out, HasSubstr("b?[31mox"));
    EXPECT_EQ(orlen({"apps", "extra"}).status, 2);
}

TEST(AppsCommandTest, leftoversAreFoundByIdentifierAndName)
{
    const InstalledHome home;
    const Process::Outcome outcome =
        orlen({"leftovers", "--json", "--id", "org.fooqux.Fooqux", "--name", "Foo Qux"});
    const Json entries = outcome.document();
    ASSERT_EQ(entries.size(), 2U) << outcome.err;
    EXPECT_EQ(entries[0]["path"], home.path(".config/org.fooqux.Fooqux"));
    EXPECT_EQ(entries[0]["size"], 8 * kKiB);
    EXPECT_FALSE(entries[0].contains("note"));
    EXPECT_EQ(entries[1]["note"], "Matched by name only");
    EXPECT_THAT(orlen({"leftovers", "--id", "org.fooqux.Fooqux"}).out,
                HasSubstr("identifier (org.fooqux.Fooqux)\n"));
    EXPECT_THAT(orlen({"leftovers", "--name", "Nobody's"}).out, HasSubstr("No leftovers found.\n"));
    EXPECT_EQ(orlen({"leftovers", "--id", ""}).status, 2);
    EXPECT_EQ(orlen({"leftovers", "--name", "", "--json"}).status, 2);
}

TEST(AppsCommandTest, withoutAnApplicationTheLeftoversOfAllThatAreGoneAreListed)
{
    const InstalledHome home;
    EXPECT_THAT(orlen({"leftovers"}).out, HasSubstr("Nothing was left behind by apps that are gone.\n"));
    const TimePoint longAgo = *timeFromIso("2024-05-01T10:00:00Z");
    for (const char* name : {".config/Barquux", ".cache/Barquux"}) {
        TempHome::setTimes(home.fileOfSize(std::string(name) + "/a", 8 * kKiB), longAgo, longAgo);
        TempHome::setTimes(home.path(name), longAgo, longAgo);
    }
    const Json entries = orlen({"leftovers", "--json"}).document();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0]["path"], home.path(".config/Barquux"));
    EXPECT_EQ(entries[0]["size"], 8 * kKiB);
    EXPECT_EQ(entries[0]["modified"], "2024-05-01T10:00:00Z");
    EXPECT_EQ(entries[0]["rating"], "review");
    EXPECT_EQ(entries[0]["note"], "No program named Barquux is installed; not changed since 2024");
    const std::string shown = orlen({"leftovers"}).out;
    EXPECT_THAT(shown, HasSubstr("Left behind by apps that are gone: 2 folders, 16 KB\n"));
    EXPECT_THAT(shown, HasSubstr("~/.cache/Barquux\n"));
}

TEST(AppsCommandTest, anUninstalledApplicationIsInTheHistory)
{
    const InstalledHome home;
    const Process::Outcome shown = orlen({"uninstall", "FOO qux", "--dry-run", "--json"});
    EXPECT_EQ(shown.status, 0) << shown.err;
    const Json plan = shown.document()["plan"];
    EXPECT_EQ(plan["title"], "Uninstall Foo Qux");
    ASSERT_EQ(plan["sections"].size(), 2U);
    EXPECT_EQ(plan["sections"][0]["entries"][0]["path"], home.installed);
    EXPECT_EQ(plan["sections"][0]["entries"][0]["size"], 4 * kKiB);
    EXPECT_EQ(plan["sections"][1]["entries"].size(), 2U);
    EXPECT_THAT(shown.err, HasSubstr("--by-name takes them along:\n  ~/.cache/foo-qux (16 KB)\n"));
    EXPECT_EQ(orlen({"uninstall", "Foo Qux"}).status, 2);
    EXPECT_TRUE(home.isUntouched());

    const Process::Outcome outcome = orlen({"uninstall", home.installed, "--by-name", "--yes"});
    EXPECT_EQ(outcome.status, 0) << outcome.err;
    EXPECT_THAT(outcome.out, HasSubstr("~/.cache/foo-qux\n"));
    EXPECT_FALSE(TempHome::exists(home.installed));
    EXPECT_FALSE(TempHome::exists(home.path(".local/share/applications/org.fooqux.Fooqux.desktop")));
    EXPECT_TRUE(TempHome::exists(home.path(".cache/other")));
    ASSERT_EQ(Persist::loadHistory().records.size(), 1U);
    EXPECT_EQ(Persist::loadHistory().records.front().title, "Uninstall Foo Qux");
    EXPECT_EQ(orlen({"restore", Persist::loadHistory().records.front().id.text(), "--yes"}).status, 0);
    EXPECT_TRUE(home.isUntouched());
}

TEST(AppsCommandTest, questionsAboutApplicationsAreAnswered)
{
    const InstalledHome home;
    EXPECT_THAT(orlen({"ask", "how big is Foo Qux"}).out, HasSubstr("The application Foo Qux takes"));
    EXPECT_THAT(orlen({"ask", "which apps do I not use"}).out, HasSubstr("application was last used"));
    home.file(".local/share/gnome-shell/application_state",
              "<application-state><context id=''><application id='org.fooqux.Fooqux.desktop' "
              "last-seen='1577880000'/></context></application-state>");
    EXPECT_THAT(orlen({"ask", "which apps do I not use"}).out,
                AllOf(HasSubstr("1 application was not used since"), HasSubstr("Foo Qux (")));
}

TEST(AppsCommandTest, aServiceOfTheApplicationIsSwitchedOffFirst)
{
    const InstalledHome home;
    const std::string calls = home.outside("calls");
    home.script(home.outside("bin/systemctl"), "echo \"$*\" >> '" + calls + "'\n[ \"$2\" = disable ]\n");
    const std::string unit =
        home.file(".config/systemd/user/fooqux.service", "[Service]\nExecStart=" + home.installed + "\n");
    const Process::Outcome stopped = orlen({"uninstall", "Foo Qux", "--yes"});
    EXPECT_EQ(stopped.status, 0) << stopped.err;
    EXPECT_FALSE(TempHome::exists(unit));
    EXPECT_TRUE(TempHome::exists(home.path(".cache/foo-qux")));
    EXPECT_THAT(TempHome::content(calls),
                HasSubstr("--user disable fooqux.service\n--user stop fooqux.service\n"));
    EXPECT_THAT(stopped.err, Not(HasSubstr("switched off")));

    EXPECT_EQ(orlen({"restore", Persist::loadHistory().records.front().id.text(), "--yes"}).status, 0);
    home.script(home.outside("bin/systemctl"), "exit 1\n");
    const Process::Outcome failed = orlen({"uninstall", "Foo Qux", "--yes"});
    EXPECT_EQ(failed.status, 0);
    EXPECT_FALSE(TempHome::exists(unit));
    EXPECT_THAT(failed.err,
                HasSubstr("fooqux.service couldn't be switched off; it may run until you log out."));
}

TEST(AppsCommandTest, whatCannotBeUninstalledIsAWrongCall)
{
    const InstalledHome home;
    home.image(".local/bin/twin-app-1.AppImage");
    home.image("Downloads/Twin_App-2.AppImage");
    home.folder(".local/share/flatpak/app/org.fooqux.Managed");
    struct Case {
        const char* name;
        std::vector<std::string> arguments;
        const char* message;
    };
    const Case cases[] = {
        {"unknown", {"Nobody's", "--yes"}, "there is no installed application \"Nobody's\"."},
        {"part of a name", {"Foo", "--yes"}, "there is no installed application"},
        {"several", {"twin app", "--yes"}, "/Downloads/Twin_App-2.AppImage\n"},
        {"managed",
         {"managed", "--yes", "--json"},
         "flatpak uninstall --delete-data --user org.fooqux.Managed"},
        {"nobody to ask", {"Foo Qux"}, "--yes"},
        {"empty", {"", "--yes"}, "there is no installed application"},
        {"no name", {"--yes"}, "NAME"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        std::vector<std::string> arguments = c.arguments;
        arguments.insert(arguments.begin(), "uninstall");
        const Process::Outcome outcome = orlen(std::move(arguments));
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.err, HasSubstr(c.message));
        EXPECT_TRUE(home.isUntouched());
    }
    EXPECT_THAT(Persist::loadHistory().records, IsEmpty());
}

TEST(AppsCommandTest, ofSeveralCopiesOneIsNamedByItsPathAndLeavesTheSettings)
{
    const InstalledHome home;
    const std::string copy = home.image("Downloads/foo-qux.AppImage");
    EXPECT_EQ(orlen({"uninstall", "Foo Qux", "--yes"}).status, 2);
    const Process::Outcome outcome = orlen({"uninstall", copy, "--yes"});
    EXPECT_EQ(outcome.status, 0);
    EXPECT_THAT(outcome.err, HasSubstr("Another copy is installed"));
    EXPECT_FALSE(TempHome::exists(copy));
    EXPECT_TRUE(home.isUntouched());
}

TEST(AppsCommandTest, ctrlCEndsThemWithoutAResult)
{
    const InstalledHome home;
    const std::vector<std::string> calls[] = {
        {"apps", "--json"}, {"leftovers", "--json", "--name", "Foo Qux"}, {"uninstall", "Foo Qux", "--yes"}};
    for (const std::vector<std::string>& call : calls) {
        SCOPED_TRACE(call.front());
        const Process::Outcome outcome = Process{call}.runInterrupted();
        EXPECT_EQ(outcome.status, 130);
        EXPECT_THAT(outcome.out, IsEmpty());
    }
    EXPECT_TRUE(home.isUntouched());
}

} // namespace orlen

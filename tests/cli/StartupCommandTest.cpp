#include "cli/Process.h"
#include "tools/startup/StartupHome.h"

#include <nlohmann/json.hpp>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <sys/stat.h>

namespace orlen {

namespace {

using Json = nlohmann::ordered_json;
using testing::AllOf;
using testing::Contains;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::MatchesRegex;
using testing::Not;

Process::Outcome startup(std::vector<std::string> arguments)
{
    arguments.insert(arguments.begin(), "startup");
    return Process{std::move(arguments)}.run();
}

/// A unit, an entry of the user and one of all users; the unit and an entry share a label.
struct UsedLogin : StartupHome {
    UsedLogin()
        : unit(file(".config/systemd/user/pipewire.service",
                    "[Unit]\nDescription=Sound\n[Service]\nExecStart=/opt/pipe wire\n")),
          twin(file(".config/autostart/pipewire.service.desktop", "[Desktop Entry]\nExec=wire\n")),
          own(file(".config/autostart/chat.desktop",
                   "[Desktop Entry]\nExec=\"/opt/My Chat\"\nHidden=false\n")),
          shared(file(outside("shared/autostart/files.desktop"), "[Desktop Entry]\nExec=files\n"))
    {
        setVariable("XDG_CONFIG_DIRS", outside("shared"));
        tool("systemctl", R"sh(case "$*" in
*list-unit-files*) echo '[{"unit_file":"pipewire.service","state":"enabled"}]';;
*is-active*) exit 3;;
esac)sh");
    }
    std::string unit, twin, own, shared;
};

Json item(const char* label, const std::string& path, const char* program, const char* scope, bool enabled)
{
    return {{"label", label},     {"path", path},        {"program", program}, {"scope", scope},
            {"enabled", enabled}, {"kind", "autostart"}, {"switchable", true}};
}

} // namespace

TEST(StartupCommandTest, theDocumentHoldsTheItemsInOrder)
{
    const UsedLogin home;
    const Process::Outcome outcome = startup({"--json"});
    EXPECT_EQ(outcome.status, 0);
    const Json service = {{"label", "pipewire.service"}, {"path", home.unit}, {"program", "/opt/pipe"},
                          {"scope", "Your account"},     {"enabled", true},   {"kind", "service"},
                          {"description", "Sound"},      {"switchable", true}};
    const Json expected = Json::array({service, item("chat", home.own, "/opt/My Chat", "Your account", true),
                                       item("pipewire.service", home.twin, "wire", "Your account", true),
                                       item("files", home.shared, "files", "All users", true)});
    EXPECT_EQ(outcome.document().dump(2), expected.dump(2));
}

TEST(StartupCommandTest, theTableIsReadable)
{
    const UsedLogin home;
    const std::string text = startup({}).out;
    EXPECT_THAT(text,
                AllOf(HasSubstr("On  pipewire.service  Your account  /opt/pipe     Part of your desktop\n"),
                      HasSubstr("On  files             All users     files\n"), Not(HasSubstr("\x1b"))));
    const StartupHome empty;
    TempHome::setVariable("XDG_CONFIG_DIRS", empty.outside("shared"));
    empty.tool("systemctl", "echo '[]'");
    EXPECT_THAT(startup({}).out, MatchesRegex("[^\n]+\\.\n")) << "a sentence, and no table";
}

TEST(StartupCommandTest, anItemIsSwitchedByLabelOrPath)
{
    const UsedLogin home;
    const Process::Outcome off = startup({"disable", "chat", "--json"});
    EXPECT_EQ(off.status, 0);
    EXPECT_EQ(off.document().dump(), item("chat", home.own, "/opt/My Chat", "Your account", false).dump());
    EXPECT_EQ(TempHome::content(home.own), "[Desktop Entry]\nExec=\"/opt/My Chat\"\nHidden=true\n");
    const Process::Outcome on = startup({"enable", home.own});
    EXPECT_EQ(on.status, 0);
    EXPECT_THAT(on.out, HasSubstr("\"chat\" is on"));
    EXPECT_EQ(TempHome::content(home.own), "[Desktop Entry]\nExec=\"/opt/My Chat\"\nHidden=false\n");

    const Process::Outcome part = startup({"--json", "disable", home.unit});
    EXPECT_EQ(part.status, 0);
    EXPECT_EQ(part.document()["enabled"], false);
    EXPECT_THAT(part.err, HasSubstr("part of your desktop"));
    EXPECT_THAT(home.calls(), Contains("systemctl: --user disable pipewire.service"));
    EXPECT_EQ(TempHome::content(home.twin), "[Desktop Entry]\nExec=wire\n");
}

TEST(StartupCommandTest, aWrongCallChangesNothing)
{
    struct Case {
        const char* name;
        std::vector<std::string> arguments;
        const char* message;
    };
    const Case cases[] = {
        {"unknown", {"disable", "nothing"}, "\"nothing\""},
        {"part of a label", {"disable", "cha"}, "\"cha\""},
        {"unknown, as a document", {"enable", "--json", "nothing"}, "\"nothing\""},
        {"two of that label", {"disable", "pipewire.service"}, "pipewire.service.desktop"},
        {"no label", {"disable"}, "LABEL"},
        {"two labels", {"disable", "chat", "files"}, "files"},
        {"no such change", {"remove", "chat"}, "remove"},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const UsedLogin home;
        const Process::Outcome outcome = startup(c.arguments);
        EXPECT_EQ(outcome.status, 2);
        EXPECT_THAT(outcome.out, IsEmpty());
        EXPECT_THAT(outcome.err, HasSubstr(c.message));
        EXPECT_THAT(TempHome::content(home.own), HasSubstr("Hidden=false"));
        EXPECT_THAT(home.calls(), Not(Contains(HasSubstr("disable"))));
    }
}

TEST(StartupCommandTest, aFailedChangeIsTold)
{
    const UsedLogin home;
    const std::string text = "[Desktop Entry]\nExec=elsewhere\n";
    home.link(".config/autostart/linked.desktop", home.file("dotfiles/linked.desktop", text));
    const Process::Outcome outcome = startup({"disable", "linked", "--json"});
    EXPECT_EQ(outcome.status, 1);
    EXPECT_THAT(outcome.err, HasSubstr("\"linked\" could not be switched off. Its file is a link"));
    EXPECT_EQ(outcome.document()["enabled"], true);
    EXPECT_EQ(outcome.document()["switchable"], false);
    EXPECT_THAT(outcome.document()["reason"].get<std::string>(), HasSubstr("is a link"));
    EXPECT_THAT(startup({}).out, HasSubstr("Its file is a link"));
    EXPECT_EQ(TempHome::content(home.path("dotfiles/linked.desktop")), text);
}

TEST(StartupCommandTest, aToolThatHangsIsNotWaitedForLong)
{
    const UsedLogin home;
    const std::string pipe = home.outside("pipe");
    ASSERT_EQ(::mkfifo(pipe.c_str(), 0600), 0);
    home.tool("systemctl", "trap '' TERM; read never < '" + pipe + "'");
    const auto before = std::chrono::steady_clock::now();
    const Process::Outcome outcome = startup({"--json"});
    EXPECT_LT(std::chrono::steady_clock::now() - before, std::chrono::seconds(30));
    EXPECT_EQ(outcome.status, 0);
    EXPECT_EQ(outcome.document()[0]["label"], "chat"); // the unit has no switch by its files alone
}

TEST(StartupCommandTest, ctrlCEndsItWithoutAResult)
{
    const UsedLogin home;
    const Process::Outcome outcome = Process{{"startup", "disable", "chat"}}.runInterrupted();
    EXPECT_EQ(outcome.status, 130);
    EXPECT_THAT(outcome.out, IsEmpty());
    EXPECT_THAT(TempHome::content(home.own), HasSubstr("Hidden=false"));
}

} // namespace orlen

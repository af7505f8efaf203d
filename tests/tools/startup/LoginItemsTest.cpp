#include "tools/startup/LoginItems.h"

#include "platform/desktop/DesktopEntry.h"
#include "platform/process/ChildProcess.h"
#include "tools/startup/LaunchControl.h"
#include "tools/startup/StartupHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <chrono>
#include <thread>

namespace orlen {

namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Optional;

/// The program runs from an image at this path.
struct Portable : StartupHome {
    explicit Portable(const std::string& name = "Apps/Orlen.AppImage")
        : image(file(name, "#!/bin/sh\nprintf '%s\\n' \"$0\" > '" + outside("started") + "'\n")),
          entry(path(".config/autostart/orlen.desktop"))
    {
        setMode(image, 0755);
        setVariable("APPIMAGE", image);
    }
    std::string image;
    std::string entry;
};

/// Whatever a path may hold: what ends quotes, begins field codes or variables, and more.
constexpr const char* kOddNames[] = {
    "plain",     "with space",       "100% sure %U %%",      "say \"hi\"",
    "it's",      "back\\slash\\\\n", "cash $HOME `id`",      "tab\there",
    "new\nline", "a;b=c#d~&|<>()*?", "\xc3\xa4\xe2\x80\xa6",
};

} // namespace

TEST(LoginItemsTest, thisProgramIsRegisteredByAnEntryOfItsOwn)
{
    const Portable home;
    EXPECT_FALSE(LoginItems::isRegistered());
    EXPECT_EQ(LoginItems::setRegistered(false), std::nullopt);
    EXPECT_EQ(LoginItems::setRegistered(true), std::nullopt);
    EXPECT_TRUE(LoginItems::isRegistered());
    const auto entry = DesktopEntry::read(home.entry);
    ASSERT_TRUE(entry);
    EXPECT_THAT(entry->command("Exec"), ElementsAre(home.image));
    EXPECT_THAT(LoginItems::names(), Optional(ElementsAre("Orlen")));
    EXPECT_EQ(LoginItems::setRegistered(false), std::nullopt);
    EXPECT_FALSE(TempHome::exists(home.entry));
    EXPECT_FALSE(LoginItems::isRegistered());
}

TEST(LoginItemsTest, theStatusIsTheRealOne)
{
    const Portable home;
    ASSERT_EQ(LoginItems::setRegistered(true), std::nullopt);
    const LaunchItem item = LaunchControl::load().front();
    EXPECT_TRUE(LaunchControl::set(item, false));
    EXPECT_FALSE(LoginItems::isRegistered()); // hidden, by this list or by the desktop's
    EXPECT_THAT(LoginItems::names(), Optional(IsEmpty()));
    EXPECT_EQ(LoginItems::setRegistered(true), std::nullopt);
    EXPECT_TRUE(LoginItems::isRegistered());
    std::remove(home.image.c_str());
    EXPECT_FALSE(LoginItems::isRegistered()); // the program was moved
}

TEST(LoginItemsTest, aFailureIsTold)
{
    const Portable home;
    const std::string target = home.file("dotfiles/orlen.desktop", "[Desktop Entry]\n");
    home.link(".config/autostart/orlen.desktop", target);
    EXPECT_NE(LoginItems::setRegistered(true), std::nullopt);
    EXPECT_NE(LoginItems::setRegistered(false), std::nullopt);
    EXPECT_EQ(TempHome::content(target), "[Desktop Entry]\n");
    EXPECT_TRUE(TempHome::exists(home.entry));
    std::remove(home.entry.c_str());

    TempHome::setMode(home.path(".config/autostart"), 0500);
    EXPECT_NE(LoginItems::setRegistered(true), std::nullopt);
    TempHome::setMode(home.path(".config/autostart"), 0700);

    TempHome::setVariable("APPIMAGE", home.path("\xff"));
    EXPECT_NE(LoginItems::setRegistered(true), std::nullopt);
    TempHome::setVariable("APPIMAGE", home.image);

    home.file(home.outside("system/.flatpak-info"));
    EXPECT_NE(LoginItems::setRegistered(true), std::nullopt);
    EXPECT_FALSE(TempHome::exists(home.entry));
}

TEST(LoginItemsTest, everyPathComesBackFromTheEntry)
{
    for (const char* name : kOddNames) {
        SCOPED_TRACE(name);
        const Portable home(name);
        ASSERT_EQ(LoginItems::setRegistered(true), std::nullopt);
        EXPECT_TRUE(LoginItems::isRegistered());
        EXPECT_THAT(DesktopEntry::read(home.entry)->command("Exec"), ElementsAre(home.image));
    }
}

TEST(LoginItemsTest, desktopsAcceptAndStartTheEntry)
{
    for (const char* name : kOddNames) {
        SCOPED_TRACE(name);
        const Portable home(name);
        TempHome::useSystemTools();
        if (ChildProcess::programPath("desktop-file-validate").empty() ||
            ChildProcess::programPath("gio").empty())
            GTEST_SKIP() << "there is no desktop-file-validate or no gio";
        ASSERT_EQ(LoginItems::setRegistered(true), std::nullopt);
        const auto verdict = ChildProcess::run({{"desktop-file-validate", home.entry}, {}});
        ASSERT_TRUE(verdict);
        EXPECT_EQ(verdict->status, 0) << verdict->output;
        // It looks for the program before it resolves "%%", and finds none.
        if (home.image.find('%') != std::string::npos)
            continue;
        const auto launch = ChildProcess::run({{"gio", "launch", home.entry}, {}});
        ASSERT_TRUE(launch);
        EXPECT_EQ(launch->status, 0);
        const std::string expected = home.image + "\n";
        const auto end = std::chrono::steady_clock::now() + std::chrono::seconds(10);
        while (TempHome::content(home.outside("started")) != expected &&
               std::chrono::steady_clock::now() < end)
            std::this_thread::sleep_for(std::chrono::milliseconds(2));
        EXPECT_EQ(TempHome::content(home.outside("started")), expected);
    }
}

TEST(LoginItemsTest, namesAreThoseOfEnabledEntries)
{
    const StartupHome home;
    EXPECT_EQ(LoginItems::names(), std::nullopt);
    home.file(home.outside("shared/autostart/b.desktop"), "[Desktop Entry]\nName=Files\n");
    home.file(home.outside("shared/autostart/c.desktop"), "[Desktop Entry]\nName=Off\nHidden=true\n");
    EXPECT_THAT(LoginItems::names(), Optional(ElementsAre("Files")));
    home.file(".config/autostart/z.desktop", "[Desktop Entry]\nExec=z\n");
    EXPECT_THAT(LoginItems::names(), Optional(ElementsAre("z", "Files")));
}

TEST(LoginItemsTest, theDesktopsOwnSettingsAreOpened)
{
    const StartupHome home;
    EXPECT_THAT(LoginItems::settingsCommand(), IsEmpty());
    home.tool("systemsettings5");
    EXPECT_THAT(LoginItems::settingsCommand(), ElementsAre("systemsettings5", "kcm_autostart"));
    home.tool("gnome-session-properties");
    EXPECT_THAT(LoginItems::settingsCommand(), ElementsAre("gnome-session-properties"));
}

} // namespace orlen

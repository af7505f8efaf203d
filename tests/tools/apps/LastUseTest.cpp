#include "tools/apps/LastUse.h"

#include "platform/files/FileStatus.h"
#include "tools/apps/AppHome.h"
#include "tools/apps/AppList.h"

#include <gtest/gtest.h>

#include <chrono>
#include <map>
#include <optional>
#include <string>

namespace orlen {
namespace {

using namespace std::chrono;
using Uses = std::map<std::string, std::optional<AppUse>>;

/// After the files of the test came: only a later reading tells anything.
const TimePoint kRead = time_point_cast<seconds>(system_clock::now()) + hours(48);

Uses uses()
{
    Uses uses;
    for (const AppInfo& app : AppList::list())
        uses[app.name] = app.lastUse;
    return uses;
}

void read(const std::string& path, TimePoint when)
{
    TempHome::setTimes(path, when, TimePoint(seconds(1'600'000'000)));
}

/// A list of documents that this program opened then.
void noteOpening(const AppHome& home, const std::string& command, TimePoint when)
{
    home.file(".local/share/recently-used.xbel",
              "<xbel><bookmark href='file:///a' visited='2025-01-01T00:00:00Z'><info><metadata>"
              "<bookmark:applications><bookmark:application name='Any' exec=\"&apos;" +
                  command + " %u&apos;\" modified='" + isoText(when) +
                  "'/></bookmark:applications></metadata></info></bookmark></xbel>");
}

} // namespace

TEST(LastUseTest, isWhatTheDesktopNoted)
{
    const AppHome home;
    home.folder(".local/share/flatpak/app/org.example.Chat");
    home.folder(".local/share/flatpak/app/org.example.Unseen");
    home.file(".local/share/gnome-shell/application_state",
              "<application-state><context id=''><application id='org.example.Chat.desktop' score='3' "
              "last-seen='1700000000'/><application id='org.example.Unseen.desktop' last-seen='-4'/>"
              "</context></application-state>");
    Uses found = uses();
    EXPECT_EQ(found["Chat"], (AppUse{TimePoint(seconds(1'700'000'000)), AppUse::Source::desktop}));
    EXPECT_EQ(found["Unseen"], std::nullopt);

    for (const char* command : {"org.example.Chat", "/app/bin/org.example.Chat"}) {
        SCOPED_TRACE(command);
        noteOpening(home, command, TimePoint(seconds(1'750'000'000)));
        found = uses();
        EXPECT_EQ(found["Chat"], (AppUse{TimePoint(seconds(1'750'000'000)), AppUse::Source::desktop}));
        EXPECT_EQ(found["Unseen"], std::nullopt);
    }
}

TEST(LastUseTest, isElseWhenTheProgramWasRead)
{
    const AppHome home;
    const std::string kite = home.image("Applications/Kite.AppImage");
    const std::string cedar = home.executable("opt/Cedar/bin/cedar");
    const std::string start = home.executable("opt/Dogwood/start");
    home.launcher(".local/share/applications/dogwood.desktop", "Dogwood", start);
    home.image("Applications/Wren.AppImage");
    read(kite, kRead);
    read(cedar, kRead);
    read(start, kRead);
    Uses found = uses();
    EXPECT_EQ(found["Kite"], (AppUse{kRead, AppUse::Source::file}));
    EXPECT_EQ(found["Cedar"], (AppUse{kRead, AppUse::Source::file}));
    EXPECT_EQ(found["Dogwood"], (AppUse{kRead, AppUse::Source::file}));
    EXPECT_EQ(found["Wren"], std::nullopt) << "read when it came";

    noteOpening(home, "/x/Kite.AppImage", kRead - hours(20));
    EXPECT_EQ(uses()["Kite"], (AppUse{kRead - hours(20), AppUse::Source::desktop})) << "the same day";
    noteOpening(home, "/x/Kite.AppImage", kRead - hours(30));
    EXPECT_EQ(uses()["Kite"], (AppUse{kRead, AppUse::Source::file}));
}

TEST(LastUseTest, isUnknownWhereReadingsAreNotNoted)
{
    const AppHome home;
    read(home.image("Applications/Kite.AppImage"), kRead);
    const std::string mount = std::to_string(statusOf(home.path()).value().mount);
    for (const auto& [options, isKnown] : {std::pair("rw,relatime", true), {"rw,noatime", false}}) {
        SCOPED_TRACE(options);
        const std::string table = home.file(home.outside(std::string("mounts-") + options),
                                            mount + " 1 8:1 / / " + options + " - ext4 /dev/sda1 rw\n");
        TempHome::reloadPlaces([&](Places& places) { places.mountTable = table; });
        EXPECT_EQ(uses()["Kite"].has_value(), isKnown);
    }
}

} // namespace orlen

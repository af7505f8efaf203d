#include "tools/apps/LeftBehind.h"

#include "clean/Safety.h"
#include "model/Words.h"
#include "tools/apps/AppHome.h"
#include "tools/apps/AppList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

namespace orlen {
namespace {

using std::chrono::days;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;

const TimePoint kNow = *timeFromIso("2026-11-22T10:00:00Z");
const TimePoint kLongAgo = *timeFromIso("2024-05-01T10:00:00Z");

/// A home folder in which applications that are gone left folders.
struct LeftHome : AppHome {
    /// Makes a file, and gives it and everything around it up to the home folder an old date.
    std::string old(std::string_view name, TimePoint time = kLongAgo) const
    {
        std::string path = fileOfSize(name, 4'096);
        age(path, time);
        return path;
    }

    void age(std::string path, TimePoint time = kLongAgo) const
    {
        for (; path.size() > this->path().size(); path = std::filesystem::path(path).parent_path())
            setTimes(path, time, time);
    }

    [[nodiscard]] std::vector<std::string> found() const
    {
        std::vector<std::string> names;
        for (const FileEntry& entry : entries())
            names.push_back(entry.path.substr(path().size() + 1));
        return names;
    }

    [[nodiscard]] static std::vector<FileEntry> entries()
    {
        Safety::refresh();
        return LeftBehind::find(AppList::list(), {}, kNow);
    }
};

TEST(LeftBehindTest, foldersOfAnAppThatIsGoneAreListedWithTheReason)
{
    const LeftHome home;
    home.old(".config/Fooqux/settings");
    home.fileOfSize(".cache/fooqux/a", 40'960);
    home.age(home.path(".cache/fooqux/a"), *timeFromIso("2025-02-01T10:00:00Z"));
    const std::vector<FileEntry> entries = LeftHome::entries();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].path, home.path(".cache/fooqux"));
    EXPECT_EQ(entries[0].size, 40'960);
    EXPECT_THAT(entries[0].rating, Optional(Rating::review));
    EXPECT_THAT(entries[0].modified, Optional(*timeFromIso("2025-02-01T10:00:00Z")));
    EXPECT_THAT(noteOf(entries[1]).base(), HasSubstr("is installed; not changed since 2024"));
    const CleanPlan plan = LeftBehind::plan(entries);
    EXPECT_EQ(plan.title.base(), "Left behind by apps that are gone");
    ASSERT_EQ(plan.sections.size(), 1U);
    EXPECT_EQ(plan.sections[0].entries, entries);
}

TEST(LeftBehindTest, aFolderCountsOnlyWhenItWasAnApplications)
{
    struct Case {
        const char* name;
        void (*prepare)(const LeftHome& home);
        bool isListed;
    };
    constexpr Case cases[] = {
        {"a name in one place only", [](const LeftHome&) {}, false},
        {"also settings", [](const LeftHome& home) { home.old(".config/Fooqux/x"); }, true},
        {"what Electron makes", [](const LeftHome& home) { home.old(".local/share/fooqux/Local State"); },
         true},
        {"a launcher whose program is gone",
         [](const LeftHome& home) {
             home.launcher(".local/share/applications/x.desktop", "Fooqux", "/opt/fooqux/run");
         },
         true},
        {"it was once to open files",
         [](const LeftHome& home) {
             home.file(".config/mimeapps.list",
                       "[Default Applications]\ntext/plain=vi.desktop;fooqux.desktop;\n");
         },
         true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const LeftHome home;
        home.old(".local/share/fooqux/a");
        c.prepare(home);
        home.age(home.path(".local/share/fooqux"));
        EXPECT_EQ(!home.found().empty(), c.isListed);
    }
    const LeftHome home;
    home.old(".local/share/org.fooqux.Barqux/a");
    EXPECT_THAT(home.found(), ElementsAre(".local/share/org.fooqux.Barqux"));
}

TEST(LeftBehindTest, anyTraceOfAProgramKeepsItsFolders)
{
    struct Case {
        const char* name;
        void (*prepare)(const LeftHome& home);
    };
    constexpr Case cases[] = {
        {"a program", [](const LeftHome& h) { h.executable(h.outside("system/usr/bin/fooqux")); }},
        {"a program with a version",
         [](const LeftHome& h) { h.executable(h.outside("system/usr/bin/fooqux-2.10")); }},
        {"a program that it begins with",
         [](const LeftHome& h) { h.executable(h.outside("system/usr/bin/fooqu")); }},
        {"one of the user's", [](const LeftHome& h) { h.executable(".cargo/bin/fooqux"); }},
        {"a crate",
         [](const LeftHome& h) { h.file(".cargo/.crates.toml", "[v1]\n\"fooqux-term 1.0 (x)\" = []\n"); }},
        {"one in PATH", [](const LeftHome& h) { h.executable(h.outside("bin/FooQux")); }},
        {"a launcher", [](const LeftHome& h) { h.sharedLauncher("x.desktop", "Foo Qux", "/x"); }},
        {"a launcher by its class",
         [](const LeftHome& h) {
             h.launcher(h.outside("system/usr/share/applications/x.desktop"), "X", "/x",
                        "StartupWMClass=fooqux\n");
         }},
        {"a package", [](const LeftHome& h) { h.file(h.outside("system/var/lib/dpkg/info/fooqux.list")); }},
        {"a package of a library",
         [](const LeftHome& h) { h.file(h.outside("system/var/lib/dpkg/info/python3-fooqux.list")); }},
        {"a service of the desktop bus",
         [](const LeftHome& h) {
             h.file(h.outside("system/usr/share/dbus-1/services/org.x.FooQux.service"));
         }},
        {"a unit",
         [](const LeftHome& h) { h.file(h.outside("system/usr/lib/systemd/user/fooqux.service")); }},
        {"a folder of a package", [](const LeftHome& h) { h.folder(h.outside("system/usr/share/fooqux")); }},
        {"a launcher of what has a folder in it",
         [](const LeftHome& h) { h.sharedLauncher("x.desktop", "Deep", "/usr/bin/deep --x"); }},
        {"an AppImage", [](const LeftHome& h) { h.image("Applications/Fooqux-1.AppImage"); }},
        {"a Flatpak", [](const LeftHome& h) { h.folder(".local/share/flatpak/app/org.x.Fooqux"); }},
        {"a Snap", [](const LeftHome& h) { h.file(h.outside("system/var/lib/snapd/snaps/fooqux_12.snap")); }},
        {"a folder at home", [](const LeftHome& h) { h.folder("src/fooqux-2.0"); }},
        {"a game", [](const LeftHome& h) { h.folder(".local/share/Steam/steamapps/common/Foo Qux"); }},
        {"a file changed lately", [](const LeftHome& h) { h.file(".config/FooQux/deep/x"); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const LeftHome home;
        home.old(".config/FooQux/deep/a");
        home.old(".cache/FooQux/a");
        ASSERT_EQ(home.found().size(), 2U);
        c.prepare(home);
        EXPECT_THAT(home.found(), IsEmpty());
    }
}

TEST(LeftBehindTest, sixtyQuietDaysAreEnough)
{
    const LeftHome home;
    home.old(".config/Fooqux/a", kNow - days(60));
    home.old(".cache/Fooqux/a", kNow - days(61));
    ASSERT_EQ(home.found().size(), 2U);
    EXPECT_THAT(noteOf(LeftHome::entries()[0]).base(), HasSubstr("not changed for 6"));
    home.old(".cache/Fooqux/a", kNow - days(60) + std::chrono::seconds(1));
    EXPECT_THAT(home.found(), IsEmpty());
}

TEST(LeftBehindTest, theUsersOwnThingsAreNeverListed)
{
    for (const char* name : {"Saves/one", "x/SaveGame1/a", "Profiles/x", "wallet.dat", "x/keys.kdbx",
                             "logins.json", "x/.git/HEAD", "certificate.pem"}) {
        SCOPED_TRACE(name);
        const LeftHome home;
        home.old(".config/Fooqux/" + std::string(name));
        home.old(".cache/Fooqux/a");
        EXPECT_THAT(home.found(), ElementsAre(".cache/Fooqux"));
    }
    const LeftHome home;
    for (const char* name :
         {"BraveSoftware", "dconf", "code", "foo", "gtk-3.0", "unity3d", "matplotlib", ".hidden"}) {
        home.old(".config/" + std::string(name) + "/a");
        home.old(".cache/" + std::string(name) + "/a");
    }
    home.link(".config/Linked", home.folder("Documents/linked"));
    home.link(".cache/Linked", home.path("Documents/linked"));
    home.folder(".config/Empty");
    home.folder(".cache/Empty");
    home.age(home.path(".config/Empty"));
    home.age(home.path(".cache/Empty"));
    TempHome::setMode(std::filesystem::path(home.old(".config/Locked/in/a")).parent_path(), 0);
    home.old(".cache/Locked/a");
    home.age(home.path(".config/Locked"));
    EXPECT_THAT(home.found(), IsEmpty());
}

TEST(LeftBehindTest, dataOfRemovedFlatpaksAndSnapsIsListed)
{
    const LeftHome home;
    home.fileOfSize(".var/app/org.fooqux.Gone/data/a", 12'288);
    home.fileOfSize(".var/app/org.fooqux.Game/data/saves/a", 4'096);
    home.fileOfSize(".var/app/org.fooqux.Here/data/a", 4'096);
    home.folder(".local/share/flatpak/app/org.fooqux.Here");
    home.old("snap/gone/common/a");
    home.fileOfSize("snap/gone/12/a", 8'192);
    home.link("snap/gone/current", home.path("snap/gone/12"));
    home.fileOfSize("snap/here/common/a", 4'096);
    home.file(home.outside("system/var/lib/snapd/snaps/here_7.snap"));
    const std::vector<FileEntry> entries = LeftHome::entries();
    EXPECT_THAT(home.found(), ElementsAre(".var/app/org.fooqux.Gone", "snap/gone/12", "snap/gone/common"));
    EXPECT_EQ(noteOf(entries[0]).base(), "No Flatpak named org.fooqux.Gone is installed");
    EXPECT_EQ(noteOf(entries[2]).base(), "No Snap named gone is installed; not changed since 2024");
    EXPECT_EQ(shown(noteOf(entries[2])), "No Snap named gone is installed; not changed since 2024");
    TempHome::setMode(home.outside("system/var/lib/snapd/snaps"), 0);
    EXPECT_THAT(home.found(), ElementsAre(".var/app/org.fooqux.Gone"));
}

TEST(LeftBehindTest, whereProgramsCannotBeSeenNothingIsListed)
{
    const LeftHome home;
    home.old(".config/Fooqux/a");
    home.old(".cache/Fooqux/a");
    home.fileOfSize(".var/app/org.fooqux.Gone/data/a", 4'096);
    home.executable(home.outside("bin/distrobox"));
    EXPECT_THAT(home.found(), ElementsAre(".var/app/org.fooqux.Gone"));
    home.file(home.outside("system/.flatpak-info"), "[Application]\n");
    EXPECT_THAT(home.found(), IsEmpty());
}

TEST(LeftBehindTest, aStoppedSearchListsNothing)
{
    const LeftHome home;
    home.old(".config/Fooqux/a");
    home.old(".cache/Fooqux/a");
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(LeftBehind::find({}, {}, kNow, stop.get_token()), IsEmpty());
}

} // namespace
} // namespace orlen

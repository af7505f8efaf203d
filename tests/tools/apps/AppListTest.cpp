#include "tools/apps/AppList.h"

#include "clean/Safety.h"
#include "platform/process/OwnProgram.h"
#include "tools/apps/AppHome.h"
#include "tools/apps/Uninstall.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <filesystem>
#include <map>
#include <mutex>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::Pair;

constexpr std::int64_t kKibibyte = 1024;

std::vector<std::string> names(const std::vector<AppInfo>& apps)
{
    std::vector<std::string> names;
    for (const AppInfo& app : apps)
        names.push_back(app.name);
    return names;
}

std::vector<std::string> paths(const std::vector<AppInfo>& apps)
{
    std::vector<std::string> paths;
    for (const AppInfo& app : apps)
        paths.push_back(app.path);
    return paths;
}

std::string bundleList(const std::string& identifier)
{
    return R"(<?xml version="1.0"?><plist version="1.0"><dict><key>CFBundleIdentifier</key><string>)" +
           identifier + "</string></dict></plist>";
}

TEST(AppListTest, bundlesAreListedOncePerFolder)
{
    const AppHome home;
    home.file(home.outside("Applications/Foo.app/Contents/Info.plist"), bundleList("org.foo.Foo"));
    home.file("Applications/Foo.app/Contents/Info.plist", bundleList("org.foo.Foo"));
    home.folder("Applications/bare.app");
    home.file("Applications/Own.app/Contents/Info.plist", bundleList(std::string(OwnProgram::identifier())));
    home.file("Applications/notes.txt");
    const std::vector<AppInfo> apps = AppList::list();
    EXPECT_THAT(paths(apps),
                ElementsAre(home.path("Applications/bare.app"), home.outside("Applications/Foo.app"),
                            home.path("Applications/Foo.app")));
    EXPECT_EQ(apps[0].bundleID, "");
    EXPECT_EQ(apps[1].bundleID, "org.foo.Foo");
    EXPECT_FALSE(apps[1].size.has_value());
}

TEST(AppListTest, namesAreSortedAsTheLanguageDoes)
{
    const AppHome home;
    for (const char* name : {"zebra", "\xC3\x84pple", "Banana", "apple", "Apple"})
        home.folder("Applications/" + std::string(name) + ".app");
    EXPECT_THAT(names(AppList::list()), ElementsAre("Apple", "apple", "\xC3\x84pple", "Banana", "zebra"));
    // Swedish has that letter at the end of the alphabet.
    TempHome::setVariable("LANGUAGE", "sv_SE");
    TempHome::reloadPlaces();
    EXPECT_EQ(names(AppList::list()).back(), "\xC3\x84pple");
}

TEST(AppListTest, anAppImageIsNamedByItsLauncher)
{
    const AppHome home;
    const std::string image = home.image("My Apps/../Applications/Foo-1.2-x86_64.AppImage");
    const std::string path = home.path("Applications/Foo-1.2-x86_64.AppImage");
    const std::string launcher = home.launcher(".local/share/applications/org.foo.Foo.desktop", "The Foo",
                                               '"' + path + "\" %U", "Name[de]=Das Foo\nIcon=foo-icon\n");
    const AppInfo app = AppList::list().front();
    EXPECT_EQ(app.path, path);
    EXPECT_EQ(app.name, "The Foo");
    EXPECT_EQ(app.bundleID, "org.foo.Foo");
    EXPECT_EQ(app.icon, "foo-icon");
    EXPECT_EQ(app.source, AppSource::appImage);
    EXPECT_THAT(app.launchers, ElementsAre(launcher));
    EXPECT_TRUE(app.isRemovable());
    TempHome::setVariable("LANGUAGE", "de_AT:en");
    TempHome::reloadPlaces();
    EXPECT_EQ(AppList::list().front().name, "Das Foo");
}

TEST(AppListTest, launchersBelongToWhatTheyStart)
{
    struct Case {
        const char* name;
        const char* file;
        const char* command; ///< "@" stands for the AppImage
        const char* lines;
        bool isOwn;
    };
    constexpr Case cases[] = {
        {"plain", "x", "@", "", true},
        {"with environment", "x", "env A=b -u LANG @ %f", "", true},
        {"by a link", "x", "@link", "", true},
        {"by name from the user's programs", "x", "fooprog", "", true},
        {"by TryExec alone", "x", "sh -c start", "TryExec=/home/no/../no\nTryExec=x\n", false},
        {"as an argument", "x", "flatpak run @", "", false},
        {"the beginning of a longer name", "x", "@2", "", false},
        {"open quote", "x", "\\\"@", "", false},
        {"deleted by a setting", "x", "@", "Hidden=true\n", false},
        {"no launcher's name", "x.bak", "@", "", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const AppHome home;
        const std::string image = home.image("Applications/Foo.AppImage");
        home.link("Applications/Foo.AppImagelink", image);
        home.link(".local/bin/fooprog", image);
        std::string command = c.command;
        if (const std::size_t at = command.find('@'); at != std::string::npos)
            command.replace(at, 1, image);
        const std::string suffix = std::string_view(c.file) == "x" ? ".desktop" : "";
        home.launcher(".config/autostart/" + std::string(c.file) + suffix, "Named", command, c.lines);
        const std::vector<AppInfo> apps = AppList::list();
        ASSERT_EQ(apps.size(), 1U); // the links are no second and third
        EXPECT_EQ(apps[0].name, c.isOwn ? "Named" : "Foo");
        EXPECT_EQ(apps[0].launchers.size(), c.isOwn ? 1U : 0U);
    }
}

TEST(AppListTest, identifiersComeFromLaunchers)
{
    struct Case {
        const char* file;
        const char* lines;
        const char* identifier;
    };
    const std::string kit = "appimagekit_0123456789abcdef0123456789abcdef-org.foo.Foo";
    const Case cases[] = {
        {"org.foo.Foo", "X-AppImage-Identifier=org.other.Foo\n", "org.foo.Foo"},
        {"foo", "X-AppImage-Identifier=org.other.Foo\n", "org.other.Foo"},
        {"Foo-1.2.3", "", ""},
        {kit.c_str(), "", "org.foo.Foo"},
        {"gearlever_org.foo.Foo", "", "org.foo.Foo"},
        {"foo", "X-AppImage-Identifier=../../x\n", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.file);
        const AppHome home;
        const std::string image = home.image("bin/Foo");
        home.launcher(".local/share/applications/" + std::string(c.file) + ".desktop", "", image, c.lines);
        const AppInfo app = AppList::list().front();
        EXPECT_EQ(app.bundleID, c.identifier);
        EXPECT_EQ(app.name, "Foo");
    }
}

TEST(AppListTest, appImagesAreFoundWhereUsersKeepThem)
{
    const AppHome home;
    home.file(".config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Geladen\"\n");
    home.folder("Geladen");
    TempHome::reloadPlaces();
    for (const char* name : {"Applications/a", "AppImages/b", ".local/bin/c", "bin/d", "opt/e",
                             ".local/opt/f", ".local/opt/sub/g", "Desktop/h", "Downloads/i", "Geladen/j"})
        home.image(name);
    for (const char* name :
         {"elsewhere/k", "opt/sub/l", ".local/opt/sub/deep/m", "Documents/n", "Downloads/o\xFF"})
        home.image(name);
    home.file("Downloads/p.AppImage", "text");
    home.link("AppImages/q", home.path("Applications/a"));
    EXPECT_THAT(names(AppList::list()), ElementsAre("a", "b", "c", "d", "e", "f", "g", "h", "i", "j"));
}

TEST(AppListTest, foldersWithAProgramAreApplications)
{
    const AppHome home;
    home.file("opt/run/AppRun");
    home.executable("opt/Named/nAmEd");
    home.executable(".local/opt/InBin/bin/inbin");
    home.file("opt/Plain/plain"); // not executable
    home.executable("opt/Other/other-tool");
    home.folder("opt/Named2/named2");
    home.executable("Applications/Started/lib/x");
    home.launcher("Desktop/s.desktop", "Starter", home.path("Applications/Started/lib/x"));
    home.link("opt/Linked", home.path("opt/Named"));
    home.launcher("Desktop/t.desktop", "One of them", home.executable("opt/Suite/one"));
    home.launcher("Desktop/u.desktop", "Another one", home.executable("opt/Suite/two"));
    home.executable("Applications/Bundle.app/Bundle.app");
    home.image(".local/opt/Image/Image.AppImage");
    home.launcher("Desktop/i.desktop", "Image", home.path(".local/opt/Image/Image.AppImage"));
    const std::vector<AppInfo> apps = AppList::list();
    EXPECT_THAT(names(apps), ElementsAre("Bundle", "Image", "InBin", "Named", "run", "Starter", "Suite"));
    EXPECT_EQ(apps[0].source, AppSource::bundle);
    EXPECT_EQ(apps[1].source, AppSource::appImage);
    EXPECT_EQ(apps[5].path, home.path("Applications/Started"));
}

TEST(AppListTest, managedApplicationsComeWithAdvice)
{
    const AppHome home;
    const std::string user = ".local/share/flatpak/app/";
    home.launcher(user + "org.foo.Foo/x86_64/stable/1/export/share/applications/org.foo.Foo.desktop", "Foo!",
                  "flatpak run");
    home.link(user + "org.foo.Foo/current", "x86_64/stable");
    home.link(user + "org.foo.Foo/x86_64/stable/active", "1");
    home.folder(home.outside("system/var/lib/flatpak/app/org.bar.Bar"));
    home.folder(user + "org.x; rm -rf .y"); // would be part of a command that users copy
    const std::string snaps = home.outside("system/var/lib/snapd/");
    home.launcher(snaps + "desktop/applications/baz_tool.desktop", "Tool", "x");
    home.launcher(snaps + "desktop/applications/baz_baz.desktop", "Baz", "x");
    home.fileOfSize(snaps + "snaps/baz_7.snap", 40 * kKibibyte);
    const std::vector<AppInfo> apps = AppList::list();
    ASSERT_THAT(names(apps), ElementsAre("Bar", "Baz", "Foo!"));
    EXPECT_EQ(apps[0].advice.base(),
              "Installed by Flatpak. Remove it in your software centre or with: flatpak "
              "uninstall --delete-data org.bar.Bar");
    EXPECT_EQ(apps[1].advice.base(),
              "Installed by Snap. Remove it in your software centre or with: snap remove baz");
    EXPECT_EQ(apps[1].path, snaps + "snaps/baz_7.snap");
    EXPECT_EQ(apps[2].adviceCommand, "flatpak uninstall --delete-data --user org.foo.Foo");
    for (const AppInfo& app : apps)
        EXPECT_FALSE(app.isRemovable());
}

TEST(AppListTest, onlyTheDataOfARemovedFlatpakIsListed)
{
    const AppHome home;
    home.folder(".local/share/flatpak/app/org.kept.App");
    home.file(home.outside("system/etc/flatpak/installations.d/x.conf"),
              "[Installation \"extra\"]\nPath=" + home.outside("extra") + "\n");
    // The folder that the setting names lies below the root of the system.
    home.folder(home.outside("system") + home.outside("extra/app/org.far.App"));
    for (const char* name : {"org.gone.App", "org.kept.App", "org.far.App", "two.parts"})
        home.file(".var/app/" + std::string(name) + "/data/x");
    home.link(".var/app/org.linked.App", home.path(".var/app/org.gone.App"));
    home.file(".var/app/org.mozilla.firefox/.mozilla/x");
    Safety::refresh();
    std::vector<AppInfo> apps = AppList::list();
    std::erase_if(apps, [](const AppInfo& app) { return app.source == AppSource::flatpak; });
    ASSERT_THAT(paths(apps), ElementsAre(home.path(".var/app/org.gone.App")));
    EXPECT_EQ(apps[0].name, "Gone");
    EXPECT_EQ(apps[0].source, AppSource::removedFlatpak);
    const CleanPlan plan = Uninstall::plan(apps[0], {});
    ASSERT_EQ(plan.sections.size(), 1U);
    EXPECT_EQ(plan.sections[0].title.base(), "App data");
}

TEST(AppListTest, theProgramItselfIsLeftOut)
{
    const AppHome home;
    const std::string image = home.image("Downloads/Own.AppImage");
    home.link("Own", image);
    home.image("Downloads/Other.AppImage");
    TempHome::setVariable("APPIMAGE", home.path("Own"));
    EXPECT_THAT(names(AppList::list()), ElementsAre("Other"));
    // Started from a terminal that is an AppImage: that one stays.
    TempHome::setVariable("APPDIR", home.folder("mounted"));
    EXPECT_THAT(names(AppList::list()), ElementsAre("Other", "Own"));
    ::unsetenv("APPIMAGE");
    ::unsetenv("APPDIR");
    EXPECT_EQ(OwnProgram::path(), std::filesystem::read_symlink("/proc/self/exe").string());
}

TEST(AppListTest, everySizeIsToldOnceAndNoneAfterAStop)
{
    const AppHome home;
    std::vector<AppInfo> apps;
    for (int i = 0; i < 40; ++i) {
        const std::string name = "opt/app" + std::to_string(i);
        home.fileOfSize(name + "/deep/er/x", (i + 1) * 4 * kKibibyte);
        apps.push_back({home.path(name), name});
    }
    std::map<std::size_t, std::int64_t> sizes;
    AppList::measure(apps,
                     [&](std::size_t i, std::int64_t bytes) { EXPECT_TRUE(sizes.emplace(i, bytes).second); });
    ASSERT_EQ(sizes.size(), apps.size());
    for (std::size_t i = 0; i < apps.size(); ++i)
        EXPECT_EQ(sizes[i], static_cast<std::int64_t>(i + 1) * 4 * kKibibyte);

    std::stop_source stop;
    std::size_t told = 0;
    AppList::measure(
        apps,
        [&](std::size_t, std::int64_t) {
            if (++told == 3)
                stop.request_stop();
        },
        stop.get_token());
    EXPECT_EQ(told, 3U);
}

TEST(AppListTest, whatRunsFromInsideAnApplicationIsNoticed)
{
    const AppHome home;
    const std::filesystem::path own = std::filesystem::read_symlink("/proc/self/exe");
    home.link(home.outside("system/proc/4711/exe"), own.string());
    AppInfo app{own.parent_path().string(), "Own folder"};
    EXPECT_TRUE(AppList::isRunning(app));
    app.path = own.string();
    EXPECT_TRUE(AppList::isRunning(app));
    app.path = own.string().substr(0, own.string().size() - 1);
    EXPECT_FALSE(AppList::isRunning(app));
    app.path = home.link("linked", own.parent_path().string());
    EXPECT_TRUE(AppList::isRunning(app));
}

TEST(AppListTest, dataIsWhatManagersKeepOrWhatWouldGoAlong)
{
    const AppHome home;
    home.folder(".local/share/flatpak/app/org.example.Chat");
    home.fileOfSize(".var/app/org.example.Chat/messages", 40 * kKibibyte);
    home.folder(".local/share/flatpak/app/org.example.Empty");
    const std::string kite = home.image("Applications/Kite.AppImage");
    home.launcher(".local/share/applications/org.example.Kite.desktop", "Kite", kite);
    home.fileOfSize(".config/org.example.Kite/settings", 8 * kKibibyte);
    home.fileOfSize(".cache/kite/pictures", 4 * kKibibyte); // by name only
    Safety::refresh();
    const std::vector<AppInfo> apps = AppList::list();
    std::map<std::string, std::int64_t> sizes;
    AppList::measureData(apps, [&](std::size_t i, std::int64_t bytes) {
        EXPECT_TRUE(sizes.emplace(apps[i].name, bytes).second);
    });
    EXPECT_THAT(sizes,
                ElementsAre(Pair("Chat", 40 * kKibibyte), Pair("Empty", 0), Pair("Kite", 8 * kKibibyte)));
}

TEST(AppListTest, programsOfPackagesAreCountedOnce)
{
    const AppHome home;
    const auto launcher = [&](const std::string& name, std::string_view lines) {
        (void)home.launcher(home.outside("system/usr/" + name), "Any", "any", lines);
    };
    EXPECT_EQ(AppList::countPackaged(), 0U);
    launcher("share/applications/one.desktop", "");
    launcher("share/applications/two.desktop", "Terminal=true\n");
    launcher("share/applications/hidden.desktop", "NoDisplay=true\n");
    launcher("share/applications/flatpak.desktop", "X-Flatpak=org.example.Chat\n");
    launcher("local/share/applications/one.desktop", "");
    launcher("local/share/applications/own.desktop", "");
    EXPECT_EQ(AppList::countPackaged(), 2U);
}

} // namespace
} // namespace orlen

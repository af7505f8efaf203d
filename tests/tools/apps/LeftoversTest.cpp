#include "tools/apps/Leftovers.h"

#include "clean/Safety.h"
#include "tools/apps/AppHome.h"
#include "tools/apps/AppList.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> paths(const std::vector<FileEntry>& entries)
{
    std::vector<std::string> paths;
    for (const FileEntry& entry : entries)
        paths.push_back(entry.path);
    return paths;
}

/// The same, without the home folder before them.
std::vector<std::string> names(const TempHome& home, const std::vector<FileEntry>& entries)
{
    std::vector<std::string> names;
    for (const FileEntry& entry : entries)
        names.push_back(entry.path.substr(home.path().size() + 1));
    return names;
}

/// Of the only application of that name in the list.
Leftovers::Finding found(const std::string& name)
{
    Safety::refresh();
    const std::vector<AppInfo> apps = AppList::list();
    const auto app = std::find_if(apps.begin(), apps.end(), [&](const AppInfo& a) { return a.name == name; });
    return app == apps.end() ? Leftovers::Finding{} : Leftovers::find(*app, apps);
}

std::string labelled(const std::string& label)
{
    return R"(<?xml version="1.0"?><plist version="1.0"><dict><key>Label</key><string>)" + label +
           "</string></dict></plist>";
}

TEST(LeftoversTest, aLibraryIsSearchedByIdentifierAndName)
{
    const AppHome home;
    const std::string library = home.outside("Library/");
    const std::vector<std::string> expected = {
        home.file("Library/Preferences/org.foo.foo.PLIST"),
        home.folder("Library/Application Support/FOO"),
        home.folder("Library/Containers/org.foo.Foo"),
        home.folder("Library/Group Containers/TEAM.org.foo.Foo"),
        home.folder("Library/Saved Application State/org.foo.Foo.savedState"),
        home.folder("Library/Logs/foo"),
        home.file("Library/LaunchAgents/helper.plist", labelled("ORG.foo.Foo.helper")),
        home.file(library + "LaunchAgents/other.plist", labelled("org.foo.Foo")),
        home.folder(library + "Preferences/org.foo.Foo"),
    };
    home.folder("Library/Preferences/Foo");
    home.folder("Library/Containers/org.foo.Fo");
    home.folder("Library/Unknown/org.foo.Foo");
    home.file("Library/LaunchAgents/label.plist", labelled("com.foo"));
    home.file("Library/LaunchAgents/label.txt", labelled("org.foo.Foo"));
    home.folder(library + "Application Support/Foo");
    const std::vector<FileEntry> entries = Leftovers::find("org.foo.Foo", "Foo");
    EXPECT_EQ(paths(entries), expected);
    EXPECT_EQ(noteOf(entries[0]).base(), "Preferences");
    EXPECT_EQ(noteOf(entries[3]).base(), "Containers");
    EXPECT_EQ(Leftovers::label(expected[6]).base(), "Launch Agents");
    EXPECT_EQ(Leftovers::label(home.path("Library")).base(), "");
}

TEST(LeftoversTest, looseMatchesAreOffForApples)
{
    const AppHome home;
    home.folder("Library/Containers/com.apple.Foo");
    home.folder("Library/Group Containers/TEAM.com.apple.Foo");
    home.folder(".config/x-com.apple.Foo");
    EXPECT_THAT(names(home, Leftovers::find("com.apple.Foo", "")),
                ElementsAre("Library/Containers/com.apple.Foo"));
    EXPECT_TRUE(Leftovers::isApple("com.apple.Foo"));
    EXPECT_FALSE(Leftovers::isApple("com.applet.Foo"));
}

TEST(LeftoversTest, theBaseFoldersAreSearchedByTheirOwnRules)
{
    struct Case {
        const char* path;
        bool isLeft;
        bool isByName;
    };
    constexpr Case cases[] = {
        {".config/org.foo.Foo", true, false},
        {".config/ORG.FOO.FOO.conf", true, false},
        {".config/org.foo.Foo-nightly", true, false},
        {".config/org.foo.Foobar", true, false}, // holds the whole of a long identifier
        {".config/my foo", true, true},
        {".local/share/my-foo", true, true},
        {".cache/my_foo", true, true},
        {".local/state/MyFoo", true, true},
        {".cache/my foo.log", false, false},
        {".config/my-foorc", true, true},
        {".local/share/my-foorc", false, false},
        {".my_foo", true, true},
        {".myfoorc", true, true},
        {".my foo.conf", false, false},
        {"my foo", false, false},
        {".org.foo.Foo", false, false},
        {".cache/foo", false, false},
        {".cache/org.foo", false, false},
        {".var/app/org.foo.Foo/x", true, false},
        {".var/app/org.foo.Foo.Plugin/x", false, false},
        {".local/share/icons/hicolor/48x48/apps/org.foo.Foo.png", true, false},
        {".local/share/icons/hicolor/48x48/apps/xorg.foo.Foo.png", false, false},
        {".local/share/metainfo/org.foo.Foo.metainfo.xml", true, false},
        {".local/share/mime/packages/my foo", false, false},
        {".config/autostart/org.foo.Foo.desktop", false, false}, // starts who knows what
        {".config/systemd/user/org.foo.Foo.service", false, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.path);
        const AppHome home;
        home.file(c.path);
        const std::vector<FileEntry> entries = Leftovers::find("org.foo.Foo", "My Foo");
        ASSERT_EQ(entries.size(), c.isLeft ? 1U : 0U);
        EXPECT_EQ(c.isLeft && entries[0].notes == std::vector<Message>{Leftovers::kByNameOnly}, c.isByName);
        EXPECT_FALSE(c.isLeft && Leftovers::label(entries[0].path).empty());
    }
}

TEST(LeftoversTest, emptyShortAndCommonWordsMatchNothing)
{
    const AppHome home;
    for (const char* name : {".hidden", "abc", "code", "git", "x.a.bb", "org.a.bcde", "-", " "})
        home.folder(".config/" + std::string(name));
    for (const char* name : {"", "abc", "Code", "GIT", " ", "-", "x/../code"})
        EXPECT_THAT(Leftovers::find("", name), IsEmpty()) << name;
    EXPECT_THAT(Leftovers::find("a.b", ""), IsEmpty());
    EXPECT_THAT(Leftovers::find(".a.b", ""), IsEmpty()); // two dots, but four characters
    EXPECT_THAT(names(home, Leftovers::find("org.a.bcde", "")), ElementsAre(".config/org.a.bcde"));
}

TEST(LeftoversTest, aContainedIdentifierMustBeLong)
{
    const AppHome home;
    home.folder(".config/x-org.a.bcd"); // nine characters
    home.folder(".config/x-org.a.bcde");
    EXPECT_THAT(Leftovers::find("org.a.bcd", ""), IsEmpty());
    EXPECT_THAT(names(home, Leftovers::find("org.a.bcde", "")), ElementsAre(".config/x-org.a.bcde"));
}

TEST(LeftoversTest, linksOddNamesAndProtectedPathsAreNeverOffered)
{
    const AppHome home;
    home.link(".config/Fooapp", home.folder("Documents/settings"));
    home.folder(".cache/fooapp\xFF");
    home.file(".local/share/Fooapp/nested");
    home.file(".fooapp/saves/one");
    home.link(".local/state", home.folder("states"));
    home.folder("states/fooapp");
    home.folder(".config/BraveSoftware");
    home.file(".ssh/key");
    EXPECT_THAT(names(home, Leftovers::find("", "Fooapp")), ElementsAre(".local/share/Fooapp"));
    home.file(".profile");
    EXPECT_THAT(Leftovers::find("", "Profile"), IsEmpty());
    EXPECT_THAT(Leftovers::find("", "BraveSoftware"), IsEmpty());
    EXPECT_THAT(Leftovers::find("", ".ssh"), IsEmpty());
}

TEST(LeftoversTest, aPathIsToldOnceAndNothingInsideAnother)
{
    const AppHome home;
    TempHome::setVariable("XDG_STATE_HOME", home.path(".config"));
    TempHome::setVariable("XDG_CACHE_HOME", home.path(".config/Fooapp"));
    TempHome::reloadPlaces();
    home.folder(".config/Fooapp/fooapp");
    Safety::refresh();
    // The folder of the caches is itself protected, so what lies in it is told.
    EXPECT_THAT(names(home, Leftovers::find("", "Fooapp")), ElementsAre(".config/Fooapp/fooapp"));
    ::unsetenv("XDG_CACHE_HOME");
    TempHome::reloadPlaces();
    Safety::refresh();
    EXPECT_THAT(names(home, Leftovers::find("", "Fooapp")), ElementsAre(".config/Fooapp"));
    ::unsetenv("XDG_STATE_HOME");
}

TEST(LeftoversTest, whatStartsTheApplicationGoesWithIt)
{
    const AppHome home;
    const std::string image = home.image("Applications/Foo Bar.AppImage");
    const std::string quoted = '"' + image + '"';
    home.launcher(".local/share/applications/x.desktop", "Foo Bar", quoted + " %U");
    home.launcher(".config/autostart/x.desktop", "Foo Bar", quoted);
    home.launcher(".config/autostart/other.desktop", "Foo Bar", "/usr/bin/flatpak run " + quoted);
    home.launcher("Desktop/x.desktop", "Foo Bar", quoted);
    home.file(".config/systemd/user/foo.service", "[Service]\nExecStart=-" + quoted + " --daemon\n");
    home.file(".config/systemd/user/bar.service", "[Service]\nExecStart=/bin/sh " + quoted + "\n");
    home.file(".config/systemd/user/foo.timer", "[Service]\nExecStart=" + quoted + "\n");
    home.folder("Applications/Foo Bar.AppImage.home");
    home.folder("Applications/Foo Bar.AppImage.config");
    home.folder("Applications/Foo Bar.AppImage.other");
    home.folder(".cache/foo-bar");
    home.link(".local/bin/foo", image);
    home.link(".local/bin/again", home.path(".local/bin/foo"));
    home.link(".local/bin/other", home.file("Applications/other"));
    const Leftovers::Finding finding = found("Foo Bar");
    EXPECT_FALSE(finding.isOtherCopyInstalled);
    EXPECT_THAT(names(home, finding.entries),
                ElementsAre(".config/autostart/x.desktop", ".local/share/applications/x.desktop",
                            "Desktop/x.desktop", ".local/bin/again", ".local/bin/foo",
                            ".config/systemd/user/foo.service", "Applications/Foo Bar.AppImage.home",
                            "Applications/Foo Bar.AppImage.config"));
    EXPECT_THAT(names(home, finding.byName), ElementsAre(".cache/foo-bar"));
    EXPECT_EQ(Leftovers::label(finding.entries.back().path).base(), "Portable data");
    EXPECT_EQ(Leftovers::label(home.path("Desktop/x.desktop")).base(), "Launchers");
    EXPECT_EQ(Leftovers::label(home.path("Desktop/X.AppImage.home")).base(), "Portable data");
}

TEST(LeftoversTest, linksIntoAFolderThatAreDeadAlreadyGoWithIt)
{
    const AppHome home;
    home.executable("opt/fooapp/bin/fooapp");
    home.link("bin/old", home.path("opt/fooapp/bin/gone"));
    home.link("bin/dead", home.path("opt/fooapp2/bin/gone"));
    EXPECT_THAT(names(home, found("fooapp").entries), ElementsAre("bin/old"));
}

TEST(LeftoversTest, managersIconsGoWithTheirLauncher)
{
    const AppHome home;
    const std::string image = home.image("AppImages/foo.appimage");
    const std::string kit = "appimagekit_0123456789abcdef0123456789abcdef";
    home.launcher(".local/share/applications/" + kit + "-Foo.desktop", "Foo App", image);
    home.launcher(".local/share/applications/gearlever_foo_12ab.desktop", "Foo App", image,
                  "Icon=" + home.path("AppImages/.icons/foo_12ab") + "\n");
    const std::string apps = ".local/share/icons/hicolor/64x64/apps/";
    for (const std::string& name :
         {kit + "_foo.png", std::string("gearlever_foo_12ab.svg"), std::string("gearlever_foo_12abc.svg"),
          std::string("appimagekit_foo.png")})
        home.file(apps + name);
    home.file("AppImages/.icons/foo_12ab");
    home.file("AppImages/.icons/bar");
    EXPECT_THAT(names(home, found("Foo App").entries),
                ElementsAre(".local/share/applications/" + kit + "-Foo.desktop",
                            ".local/share/applications/gearlever_foo_12ab.desktop", apps + kit + "_foo.png",
                            apps + "gearlever_foo_12ab.svg", "AppImages/.icons/foo_12ab"));
}

TEST(LeftoversTest, whileAnotherCopyIsListedNothingIsOffered)
{
    struct Case {
        const char* name;
        const char* other;
        bool isCopy;
    };
    constexpr Case cases[] = {{"the same name", "AppImages/fooapp-2.0.AppImage", true},
                              {"another name", "AppImages/foobar.AppImage", false},
                              {"data of a removed Flatpak", ".var/app/org.x.Fooapp/data", false},
                              {"a Flatpak", ".local/share/flatpak/app/org.x.Fooapp/x", true}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const AppHome home;
        home.image("Applications/Fooapp-1.0.AppImage");
        home.folder(".cache/Fooapp");
        home.image(c.other);
        std::vector<AppInfo> apps = AppList::list();
        ASSERT_EQ(apps.size(), 2U);
        const AppInfo app = apps[0].source == AppSource::appImage ? apps[0] : apps[1];
        const AppInfo own = app.path == home.path("Applications/Fooapp-1.0.AppImage") ? app : apps[0];
        const Leftovers::Finding finding = Leftovers::find(own, apps);
        EXPECT_EQ(finding.isOtherCopyInstalled, c.isCopy);
        EXPECT_EQ(finding.byName.empty(), c.isCopy);
    }
}

TEST(LeftoversTest, aNameThatSomethingElseHasMatchesNothing)
{
    struct Case {
        const char* name;
        void (*prepare)(const AppHome& home);
        bool isShared;
    };
    constexpr Case cases[] = {
        {"nothing else", [](const AppHome&) {}, false},
        {"a package of the same name",
         [](const AppHome& home) { home.sharedLauncher("x.desktop", "fooapp", "/usr/bin/x"); }, true},
        {"a package whose program has the name",
         [](const AppHome& home) { home.sharedLauncher("x.desktop", "X", "/usr/lib/x/fooapp %f"); }, true},
        {"a package with the same identifier",
         [](const AppHome& home) { home.sharedLauncher("old/org.x.Fooapp.desktop", "X", "x"); }, true},
        {"a launcher for all users that starts the application",
         [](const AppHome& home) {
             home.sharedLauncher("x.desktop", "Fooapp", home.path("Applications/Fooapp.AppImage"));
         },
         false},
        {"a program for the shell",
         [](const AppHome& home) { home.executable(home.outside("system/usr/bin/fooapp")); }, true},
        {"a link to the application for the shell",
         [](const AppHome& home) {
             home.link(home.outside("system/usr/bin/fooapp"), home.path("Applications/Fooapp.AppImage"));
         },
         false},
        {"a script for the shell that starts the application",
         [](const AppHome& home) {
             home.script(".local/bin/fooapp", "exec \"$HOME/Applications/Fooapp.AppImage\" \"$@\"\n");
         },
         false},
        {"a script for the shell that starts something else",
         [](const AppHome& home) { home.script(".local/bin/fooapp", "exec /usr/lib/fooapp/run\n"); }, true},
        {"a launcher that starts the application through a script",
         [](const AppHome& home) {
             const std::string script = home.script(
                 "src/start", "cd /tmp\nexec '" + home.path("Applications/Fooapp.AppImage") + "'\n");
             home.sharedLauncher("fooapp.desktop", "Fooapp", script);
         },
         false},
        {"another application of the user in the menu",
         [](const AppHome& home) {
             home.launcher(".local/share/applications/y.desktop", "Fooapp", home.executable("src/y"));
         },
         true},
        {"a launcher of what is gone",
         [](const AppHome& home) {
             home.launcher(".local/share/applications/y.desktop", "Fooapp", home.path("src/y"));
         },
         false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const AppHome home;
        const std::string image = home.image("Applications/Fooapp.AppImage");
        home.launcher(".local/share/applications/org.x.Fooapp.desktop", "Fooapp", image);
        home.folder(".cache/Fooapp");
        home.folder(".config/org.x.Fooapp");
        c.prepare(home);
        const Leftovers::Finding finding = found("Fooapp");
        EXPECT_THAT(names(home, finding.entries),
                    ElementsAre(".config/org.x.Fooapp", ".local/share/applications/org.x.Fooapp.desktop"));
        EXPECT_EQ(names(home, finding.byName),
                  c.isShared ? std::vector<std::string>() : std::vector<std::string>{".cache/Fooapp"});
    }
}

TEST(LeftoversTest, whatALongerIdentifierClaimsStays)
{
    const AppHome home;
    home.image("Applications/Foo.AppImage");
    home.launcher(".local/share/applications/org.foo.Foobar.desktop", "Foo Bar",
                  home.path("Applications/Foo.AppImage"));
    home.folder(".local/share/flatpak/app/org.foo.Foobar.Beta");
    home.sharedLauncher("org.foo.Foobar-edit.desktop", "Edit", "edit");
    for (const char* name : {"org.foo.Foobar", "org.foo.Foobar.Beta", "org.foo.Foobar.Beta.old",
                             "org.foo.Foobar-edit.conf", "org.foo.Foobar-x"})
        home.folder(".config/" + std::string(name));
    EXPECT_THAT(names(home, found("Foo Bar").entries),
                ElementsAre(".config/org.foo.Foobar", ".config/org.foo.Foobar-x",
                            ".local/share/applications/org.foo.Foobar.desktop"));
}

TEST(LeftoversTest, dataOfAnInstalledFlatpakStays)
{
    const AppHome home;
    home.folder(".var/app/org.foo.Foo");
    EXPECT_EQ(Leftovers::find("org.foo.Foo", "").size(), 1U);
    home.folder(home.outside("system/var/lib/flatpak/app/org.foo.Foo"));
    EXPECT_THAT(Leftovers::find("org.foo.Foo", ""), IsEmpty());
    EXPECT_THAT(found("Foo").entries, IsEmpty());
}

TEST(LeftoversTest, aStoppedSearchOffersNothing)
{
    const AppHome home;
    home.folder(".config/Fooapp");
    std::stop_source stop;
    stop.request_stop();
    EXPECT_THAT(Leftovers::find("", "Fooapp", stop.get_token()), IsEmpty());
}

} // namespace
} // namespace orlen

#include "clean/Safety.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <array>
#include <atomic>
#include <thread>

namespace orlen {
namespace {

struct Case {
    const char* path; ///< below the home folder, or absolute
    bool isProtected;
    bool protectsContents;
};

class SafetyTest : public testing::Test {
protected:
    SafetyTest() { Safety::refresh(); }
    ~SafetyTest() override
    {
        // Other tests of this program get ordinary answers again.
        const TempHome fresh;
        Safety::refresh();
    }

    void expect(std::initializer_list<Case> cases) const
    {
        for (const Case& c : cases) {
            SCOPED_TRACE(c.path);
            EXPECT_EQ(Safety::isProtected(path(c.path)), c.isProtected);
            EXPECT_EQ(Safety::protectsContents(path(c.path)), c.protectsContents);
        }
    }

    /// Pretends that these file systems are mounted: pairs of point and type.
    void mount(std::initializer_list<std::pair<std::string, std::string>> mounts) const
    {
        std::string table = "1 0 8:1 / / rw - ext4 /dev/sda1 rw\n";
        for (const auto& [point, type] : mounts)
            table += "2 1 8:2 / " + path(point) + " rw - " + type + " source rw\n";
        const std::string file = home.file(home.outside("mountinfo"), table);
        TempHome::reloadPlaces([&](Places& places) { places.mountTable = file; });
        Safety::refresh();
    }

    const TempHome home;

private:
    [[nodiscard]] std::string path(std::string_view name) const
    {
        return name.starts_with('/') ? std::string(name) : home.path(name);
    }
};

TEST_F(SafetyTest, onlyThreeTreesMayBeTouched)
{
    expect({{"/", true, false},
            {"/usr/local/bin/tool", true, true},
            {"/private/etc/hosts", true, true},
            {"/Volumes/Backup/file", true, true},
            {"/tmp", true, false},
            {"x/../../../../System/Library", true, true}});
    for (const char* path : {"", "relative", "../x", "~/x"})
        EXPECT_TRUE(Safety::isProtected(path) && Safety::protectsContents(path)) << path;
    EXPECT_TRUE(Safety::isProtected(home.path()));
    EXPECT_FALSE(Safety::protectsContents(home.path()));
    EXPECT_TRUE(Safety::isProtected(home.path() + "x/file")) << "a neighbour's home folder";
    for (const char* tree : {"Applications", "Library"}) {
        EXPECT_TRUE(Safety::isProtected(home.outside(tree))) << tree;
        EXPECT_FALSE(Safety::protectsContents(home.outside(tree))) << tree;
        EXPECT_FALSE(Safety::isProtected(home.outside(tree) + "/x")) << tree;
        EXPECT_TRUE(Safety::isProtected(home.outside(tree) + "s/x")) << tree;
    }
    EXPECT_TRUE(Safety::isProtected(home.outside("system/usr/bin")));
}

TEST_F(SafetyTest, keptFoldersProtectThemselvesButNotTheirContents)
{
    for (const char* name :
         {"Library", "Documents", "Desktop", "Pictures", "Downloads", "Movies", "Music", ".cache", ".config",
          ".local/share", "Videos", "snap", "snap/app", ".var/app/org.x.Y/cache", ".cargo",
          ".local/share/Steam/steamapps", ".local/share/Trash/files"}) {
        SCOPED_TRACE(name);
        expect({{name, true, false}});
        expect({{(std::string(name) + "/x/y").c_str(), false, false}});
    }
    expect({{"documents", false, false}, {"Documents2", false, false}, {"a/Documents", false, false}});
}

TEST_F(SafetyTest, baseRules)
{
    expect({{"Library/Caches/x", false, false},
            {"Downloads/a.dmg", false, false},
            {"Photos Library.photoslibrary", true, true},
            {"Pictures/Old.photoslibrary/originals/1.heic", true, true},
            {"Pictures/photoslibrary", false, false},
            {"Library/Mobile Documents/x", true, true},
            {"Library/Mobile Documents2/x", true, true},
            {"Library/CloudStorage", true, true},
            {"a/Library/Mobile Documents", false, false},
            {"Library/Mail/V10/x", true, true},
            {"Projects/Library/Mail", true, true},
            {"Library/Mail Downloads/x", false, false},
            {"Mail2/Library", false, false},
            {"a/Library/x/Mail", false, false},
            {"a/.report.pdf.icloud", true, false},
            {"a.icloud/inside", false, false}});
    EXPECT_TRUE(Safety::isProtected(home.outside("Library/Mail/x")));
}

TEST_F(SafetyTest, privateAndManagedPlaces)
{
    expect({{".ssh", true, true},
            {".ssh/id_ed25519", true, true},
            {".sshfoo", false, false},
            {".config/gcloud/x", true, true},
            {".cargo/credentials.toml", true, true},
            {".cargo/registry/cache", false, false},
            {".local/share/keyrings/login.keyring", true, true},
            {".config/google-chrome-beta/x", true, true},
            {".config/google-chrom", false, false},
            {".config/Slack/Cache", false, false},
            {".var/app/org.mozilla.firefox/.mozilla/x", true, true},
            {".var/app/org.mozilla.firefox/cache", true, false},
            {".var/app/org.mozilla.firefox/cache/x", false, false},
            {".var/app/org.gone.App", false, false},
            {".var/app/org.gone.App/config/x", false, false},
            {"snap/firefox/common/.mozilla", true, true},
            {"snap/firefox/common", true, false},
            {"snap/firefox/common/.cache/x", false, false},
            {"snap/chromium/4173/.config", true, true},
            {"snap/other/common/x", false, false},
            {".claws-mail", true, false},
            {".claws-mail/imapcache", true, true},
            {".claws-mail/mimetmp/a.pdf", false, false},
            {".local/share/containers/storage", true, true},
            {".local/share/Steam/steamapps/common/Game", true, true},
            {".local/share/Steam/steamapps/shadercache/1", false, false},
            {".local/share/Trash/info/x", true, true},
            {".local/share/Trash/files/x", false, false},
            {".local/share/Orlen/history.json", true, true},
            {".local/share/OrlenX", false, false},
            {".cache/foo", false, false}});
    const std::string trash = ".Trash-" + std::to_string(Places::current().user);
    EXPECT_TRUE(Safety::isProtected(home.path(trash)));
    EXPECT_TRUE(Safety::protectsContents(home.path(trash + "/info")));
    EXPECT_FALSE(Safety::isProtected(home.path(trash + "/files/x")));
}

TEST_F(SafetyTest, ofABrowserProfileOnlyTheCachesOfItsEngineAreFree)
{
    for (const char* browser :
         {".config/google-chrome-beta", ".config/chromium", ".config/BraveSoftware/Brave-Browser",
          ".config/yandex-browser", ".var/app/com.google.Chrome/config/google-chrome",
          ".var/app/com.brave.Browser/config/BraveSoftware/Brave-Browser", "snap/chromium/common/chromium"}) {
        SCOPED_TRACE(browser);
        const auto in = [&](std::string_view name) { return browser + std::string(name); };
        for (const char* free :
             {"/ShaderCache", "/Default/GPUCache", "/Profile 7/DawnWebGPUCache/x", "/OptGuideOnDeviceModel"})
            EXPECT_FALSE(Safety::isProtected(home.path(in(free)))) << free;
        for (const char* kept :
             {"", "/Default", "/Default/Cookies", "/Default/GPUCache2", "/Default/Storage/GPUCache",
              "/Profile/GPUCache", "/Default/IndexedDB/x", "/Default/Service Worker/CacheStorage"})
            EXPECT_EQ(Safety::protection(home.path(in(kept))), Protection::browserProfiles) << kept;
    }
    expect({{".config/mozilla/firefox/p/GPUCache", true, true},
            {".local/share/qutebrowser/webengine/GPUCache/x", false, false},
            {".local/share/qutebrowser/webengine/Cookies", true, true},
            {".local/share/falkon/QtWebEngine/Default/ShaderCache", false, false},
            {".local/share/epiphany/x", true, true},
            {".var/app/com.brave.Browser/data/x", true, true},
            {".var/app/com.brave.Browser/cache/x", false, false}});
}

TEST_F(SafetyTest, whatProgramsLetGoOfInsideTheirProtectedFolders)
{
    expect({{".minikube", true, false},
            {".minikube/certs/ca.pem", true, true},
            {".minikube/cache/x", false, false},
            {".lmstudio/conversations/1.json", true, true},
            {".lmstudio/models/maker", true, false},
            {".lmstudio/models/maker/model", false, false},
            {".local/share/TelegramDesktop/tdata/key_datas", true, true},
            {".local/share/TelegramDesktop/tdata/user_data#2/media_cache", false, false},
            {"snap/telegram-desktop/12/.local/share/TelegramDesktop/tdata/user_data/x", true, true},
            {".steam", true, false},
            {".steam/steam/steamapps/common/Game", true, true},
            {".steam/steam/userdata/1", true, true},
            {".steam/steam/steamapps/shadercache/1", false, false},
            {"Games/Library/steamapps/compatdata/1", true, true},
            {"Games/Library/steamapps/common-x", false, false},
            {".var/app/eu.betterbird.Betterbird/.thunderbird/p/Mail", true, true},
            {".var/app/eu.betterbird.Betterbird/cache/tmp/x", false, false},
            {"snap/thunderbird/common/.thunderbird", true, true},
            {"snap/thunderbird/common/.cache/x", false, false},
            {".claude/x", true, true},
            {".config/Standard Notes/x", true, true},
            {".local/share/baloo/index", true, true}});
}

TEST_F(SafetyTest, everyProtectedPathHasAReason)
{
    home.folder("Dropbox");
    home.file(".config/Signal/x");
    mount({{"Projects/nas", "nfs4"}, {"disk", "ext4"}});
    const std::pair<const char*, Protection> cases[] = {
        {"/usr/bin/x", Protection::outside},
        {"Documents", Protection::mainFolders},
        {".config", Protection::mainFolders},
        {".cargo", Protection::settingsBesideCaches},
        {".ssh/id", Protection::credentials},
        {".thunderbird/x", Protection::mail},
        {".config/Signal/x", Protection::conversations},
        {"p/.git/config", Protection::repositories},
        {"Pictures/a.photoslibrary/x", Protection::mediaLibraries},
        {"a/Library/Mail/x", Protection::mail},
        {"a.pdf.nextcloud", Protection::placeholders},
        {"Dropbox/x", Protection::syncFolders},
        {"disk", Protection::mountPoints},
        {"Projects/nas/x", Protection::otherFileSystems},
        {"Projects", Protection::holdsProtected},
        {"Projects/x", Protection::none},
        {".cache/x", Protection::none}};
    for (const auto& [name, expected] : cases) {
        const std::string path = *name == '/' ? name : home.path(name);
        EXPECT_EQ(Safety::protection(path), expected) << name;
        EXPECT_EQ(Safety::isProtected(path), expected != Protection::none) << name;
    }
    EXPECT_EQ(Safety::protection("relative"), Protection::unclearPath);
    for (const Protection protection : allProtections())
        EXPECT_TRUE(!label(protection).empty() && reason(protection).base().ends_with('.'))
            << label(protection).base();
    EXPECT_EQ(allProtections().size(), static_cast<std::size_t>(Protection::unclearPath));
}

TEST_F(SafetyTest, namesThatAreProtectedAnywhere)
{
    expect({{"src/p/.git", true, true},
            {"src/p/.git/objects/x", true, true},
            {".gitignore", false, false},
            {"src/p.git/objects", false, false},
            {"src/_darcs/x", true, true},
            {"Pictures/Catalogue.lrdata/x", true, true},
            {"Pictures/.lrdata", true, true},
            {"Pictures/x.lrdata2", false, false},
            {"Pictures/x.dtBase2", true, true},
            {"Pictures/x.dtbase2", false, false},
            {"a.pdf.nextcloud", true, false},
            {"a.owncloud", true, false},
            {"Pictures/digikam4.db", true, false},
            {"Pictures/my-digikam4.db", false, false}});
}

TEST_F(SafetyTest, oddSpellingsAreReadAsTheKernelWould)
{
    expect({{".ssh/", true, true},
            {"a//b/../../.ssh/./id", true, true},
            {".ssh/../free", false, false},
            {"Documents/.", true, false},
            {"caf\xE9/x", false, false},
            {".SSH/id", false, false}});
    using namespace std::string_literals;
    EXPECT_TRUE(Safety::isProtected(home.path("free") + "\0"s)) << "the kernel would stop at the zero byte";
    EXPECT_TRUE(Safety::isProtected(home.path(".ssh") + "\0x"s));
    EXPECT_FALSE(Safety::isProtected(home.path(std::string(255, 'n'))));
}

TEST_F(SafetyTest, movedBaseFoldersAndUserFoldersAreNamedToo)
{
    home.folder("Schreibtisch");
    home.file("conf/user-dirs.dirs", "XDG_DESKTOP_DIR=\"$HOME/Schreibtisch\"\n");
    TempHome::setVariable("XDG_CONFIG_HOME", home.path("conf"));
    TempHome::setVariable("XDG_DATA_HOME", home.path("d*ta"));
    TempHome::reloadPlaces();
    Safety::refresh();
    expect({{"conf", true, false},
            {"conf/chromium/x", true, true},
            {"conf/chromium/Default/GPUCache", false, false},
            {".config/chromium/x", true, true},
            {"d*ta", true, false},
            {"d*ta/keyrings", true, true},
            {"dxta/keyrings", false, false},
            {".local/share/keyrings", true, true},
            {"Schreibtisch", true, false},
            {"Schreibtisch/x", false, false}});
}

TEST_F(SafetyTest, homeFolderBehindALinkIsOneHome)
{
    const std::string linked = home.link(home.outside("linked"), home.path());
    TempHome::setVariable("HOME", linked);
    TempHome::reloadPlaces();
    Safety::refresh();
    EXPECT_EQ(Safety::home(), linked);
    for (const std::string& base : {linked, home.path()}) {
        SCOPED_TRACE(base);
        EXPECT_TRUE(Safety::isProtected(base));
        EXPECT_TRUE(Safety::isProtected(base + "/.ssh/id"));
        EXPECT_TRUE(Safety::isProtected(base + "/Documents"));
        EXPECT_FALSE(Safety::isProtected(base + "/Documents/x"));
    }
}

TEST_F(SafetyTest, unusableHomeFolderProtectsEverything)
{
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    Safety::refresh();
    expect({{"/", true, true}, {"free", true, true}, {"Documents/x", true, true}});
    EXPECT_TRUE(Safety::isProtected(home.outside("Applications/x")));
}

TEST_F(SafetyTest, parentsOfProtectedPlacesDoNotMove)
{
    expect({{".var/app/org.mozilla.firefox", false, false}, {"snap/steam/common", false, false}});
    home.file(".var/app/org.mozilla.firefox/data/x");
    home.file("snap/steam/common/.local/share/Steam/userdata/x");
    Safety::refresh();
    expect({{".var/app/org.mozilla.firefox", true, false},
            {"snap/steam/common", true, false},
            {"snap/steam/common/.local", true, false},
            {"snap/steam/common/x", false, false},
            {".var/app/org.other", false, false}});
}

TEST_F(SafetyTest, placeBehindALinkCountsAsExisting)
{
    home.folder("disk/common");
    home.link("snap/steam", home.path("disk"));
    Safety::refresh();
    expect({{"snap/steam", true, false}, {"snap/steam/common", true, false}, {"disk/common", false, false}});
}

TEST_F(SafetyTest, mountPointsAndTheirParentsDoNotMove)
{
    expect({{"Projects", false, false}});
    mount({{"Projects/nas", "fuse.sshfs"}, {"disk", "ext4"}, {"stick", "vfat"}, {".cache", "tmpfs"}});
    expect({{"Projects", true, false},
            {"Projects/nas", true, true},
            {"Projects/nas/a", true, true},
            {"Projects/nasty", false, false},
            {"disk", true, false},
            {"disk/a", false, false},
            {"stick", true, false},
            {"stick/a", false, false},
            {".cache/foo", true, true}});
    mount({});
    expect({{"Projects", false, false}, {"Projects/nas/a", false, false}});
}

TEST_F(SafetyTest, homeFoldersOwnFileSystemIsNeverHeldAgainstIt)
{
    mount({{home.path(), "overlay"}, {home.outside(), "9p"}});
    expect({{"free", false, false}, {"Documents", true, false}});
}

TEST_F(SafetyTest, mountsAreKnownByTheirResolvedPath)
{
    const std::string linked = home.link(home.outside("linked"), home.path());
    const std::string file =
        home.file(home.outside("mountinfo"), "2 1 0:2 / " + home.path("a/nas") + " rw - nfs4 server:/ rw\n");
    TempHome::setVariable("HOME", linked);
    TempHome::reloadPlaces([&](Places& places) { places.mountTable = file; });
    Safety::refresh();
    EXPECT_TRUE(Safety::protectsContents(linked + "/a/nas/x"));
    EXPECT_TRUE(Safety::isProtected(linked + "/a"));
}

TEST_F(SafetyTest, syncRootsAreSealedAndTheirParentsStay)
{
    home.folder("Dropbox");
    home.file("Work/Cloud/.stfolder");
    Safety::refresh();
    expect({{"Dropbox", true, true},
            {"Dropbox/x", true, true},
            {"Dropboxes/x", false, false},
            {"Work", true, false},
            {"Work/Cloud/x", true, true},
            {"Work/x", false, false}});
}

TEST_F(SafetyTest, syncRootAroundTheHomeFolderProtectsOnlyTheDefaultFolders)
{
    home.file(".dropbox/info.json", R"({"a": {"path": ")" + home.path() + R"("}, "b": {"path": ")" +
                                        home.outside() + R"("}, "c": {"path": "/"}})");
    home.file(".stfolder/x");
    home.folder("MEGA");
    Safety::refresh();
    expect({{"free", false, false}, {"MEGA/x", true, true}, {".stfolder", true, false}});
}

TEST_F(SafetyTest, answersStayConsistentWhileTheTableIsReplaced)
{
    home.folder("Dropbox");
    Safety::refresh();
    std::atomic<bool> isOver = false;
    std::atomic<int> wrong = 0;
    const auto ask = [&] {
        while (!isOver) {
            wrong += !Safety::isProtected(home.path("Dropbox/x"));
            wrong += Safety::isProtected(home.path("free/x"));
        }
    };
    {
        const std::array<std::jthread, 4> askers{std::jthread(ask), std::jthread(ask), std::jthread(ask),
                                                 std::jthread(ask)};
        std::jthread other([] {
            for (int i = 0; i < 30; ++i)
                Safety::refresh();
        });
        for (int i = 0; i < 30; ++i)
            Safety::refresh();
        isOver = true;
    }
    EXPECT_EQ(wrong, 0);
}

TEST_F(SafetyTest, refreshIsSeenByEveryThread)
{
    const std::string file = home.path("Dropbox/x");
    std::atomic<int> step = 0;
    bool before = true;
    bool after = false;
    std::jthread asker([&] {
        before = Safety::isProtected(file);
        step = 1;
        step.notify_one();
        step.wait(1);
        after = Safety::isProtected(file);
    });
    step.wait(0);
    home.folder("Dropbox");
    Safety::refresh();
    step = 2;
    step.notify_one();
    asker.join();
    EXPECT_FALSE(before);
    EXPECT_TRUE(after);
}

} // namespace
} // namespace orlen

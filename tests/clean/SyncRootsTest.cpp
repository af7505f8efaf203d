#include "clean/SyncRoots.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <sys/stat.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class SyncRootsTest : public testing::Test {
protected:
    [[nodiscard]] static std::vector<std::string> found(const HomeMounts& mounts = {})
    {
        return SyncRoots::find(Places::current(), mounts);
    }

    const TempHome home;
};

TEST_F(SyncRootsTest, dropboxAccountsAreRead)
{
    home.file(".dropbox/info.json", R"({"personal": {"path": ")" + home.path("Wolke/") + R"(", "host": 7},
        "business": {"path": ")" + home.path("a/../Büro") +
                                        R"("}, "odd": {"path": 7}, "list": [], "none": {}})");
    EXPECT_THAT(found(), UnorderedElementsAre(home.path("Wolke"), home.path("Büro")));
}

TEST_F(SyncRootsTest, nextcloudEscapesAreDecoded)
{
    home.file(".config/Nextcloud/nextcloud.cfg",
              "[Accounts]\n0\\Folders\\1\\localPath=" + home.path("Next/") +
                  "\r\n0\\Folders\\1\\localPathX=/x\n0\\Folders\\2\\localPath=\"" +
                  home.path("B\\xfc"
                            "ro, \\\"alt\\\" \\xd83d\\xde00") +
                  "\"\n0\\Folders\\4\\localPath=" + home.path("half\\xd83d\\xfcx\\xde00") +
                  "\n0\\Folders\\3\\targetPath=/remote\nlocalPath=\n");
    home.file(".config/ownCloud/owncloud.cfg",
              "0\\FoldersWithPlaceholders\\1\\localPath=" + home.path("Grün"));
    home.file(".var/app/com.example.cloud/config/Nextcloud/nextcloud.cfg",
              "localPath = " + home.path("Boxed"));
    EXPECT_THAT(found(),
                UnorderedElementsAre(home.path("Next"), home.path("Büro, \"alt\" 😀"),
                                     home.path("half\uFFFDüx\uFFFD"), home.path("Grün"), home.path("Boxed")));
}

TEST_F(SyncRootsTest, syncthingFoldersAreRead)
{
    home.file(
        ".local/state/syncthing/config.xml",
        "<configuration><folder id='a' path='~/Notes &amp; more'><device/></folder><folder path='~/b/'/>"
        "<defaults><folder path='~'/><folder path='~/template'/></defaults></configuration>");
    home.file(".config/syncthing/config.xml",
              "<configuration><folder path='" + home.path("old") + "'/></configuration>");
    home.file(".var/app/org.x.Sync/config/syncthing/config.xml",
              "<configuration><folder path='~/boxed'/></configuration>");
    EXPECT_THAT(found(), UnorderedElementsAre(home.path("Notes & more"), home.path("b"), home.path("old"),
                                              home.path("boxed")));
}

TEST_F(SyncRootsTest, oneDriveFolderIsRead)
{
    home.file(".config/onedrive/config",
              "# sync_dir = \"~/no\"\nsync_dir = \"~/Meine Wolke\"\nskip_dir = \"x\"\nsync_dir=~/bare\n");
    home.file(".config/onedrive-business/config", "sync_dir = \"~/Firm\"\n");
    home.file(".config/onedrive/accounts/second/config", "sync_dir = \"~/Second\"\n");
    home.file(".config/onedriver/config", "sync_dir = \"~/no\"\n");
    EXPECT_THAT(found(), UnorderedElementsAre(home.path("Meine Wolke"), home.path("bare"), home.path("Firm"),
                                              home.path("Second")));
}

TEST_F(SyncRootsTest, maestralFoldersAreRead)
{
    home.file(".config/maestral/maestral.ini",
              "[main]\nversion = 1\n\n[sync]\npath = " + home.path("Dropbox (Private)") + "\nreindex = 2\n");
    home.file(".config/maestral/work.ini", "[sync]\npath = ~/Firm\nexcluded_items = ['/no']\n");
    home.file(".config/maestral/work.state", "[sync]\npath = ~/no\n");
    EXPECT_THAT(found(), UnorderedElementsAre(home.path("Dropbox (Private)"), home.path("Firm")));
}

TEST_F(SyncRootsTest, uselessPathsAreDropped)
{
    const std::string tooLong = home.path(std::string(5000, 'x'));
    home.file(".config/onedrive/config", "sync_dir=\nsync_dir=relative\nsync_dir=~\nsync_dir=~/\nsync_dir=/"
                                         "\nsync_dir=~/..\nsync_dir=~other/x\n"
                                         "sync_dir=" +
                                             tooLong + "\nsync_dir=~/ze" + std::string(1, '\0') + "ro\n");
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(SyncRootsTest, brokenAndHostileSettingsAreSurvived)
{
    const struct {
        const char* file;
        std::string content;
    } cases[] = {
        {".dropbox/info.json", "{\"a\": {\"path\": \"/x"},
        {".dropbox/info.json", "[{\"path\": \"~/x\"}]"},
        {".dropbox/info.json", std::string(1'000'000, '[')},
        {".dropbox/info.json", "{\"a\": {\"path\": \"/\xFF\"}}"},
        {".local/state/syncthing/config.xml", "<configuration><folder path='~/x'"},
        {".local/state/syncthing/config.xml", "<other><folder path='~/x'/></other>"},
        {".config/Nextcloud/nextcloud.cfg", "localPath=\\x\nlocalPath=\\xffffff\nlocalPath=\\"},
        {".config/Nextcloud/nextcloud.cfg", "localPath=\\x0\nlocalPath=~/a\\x0\nlocalPath=\\xd83d"},
        {".config/onedrive/config", "sync_dir=~/x\n" + std::string(4UL * 1024 * 1024, '#')},
        {".config/onedrive/config", "=\n==\nsync_dir"},
    };
    for (const auto& c : cases) {
        SCOPED_TRACE(c.content.substr(0, 40));
        home.file(c.file, c.content);
        EXPECT_THAT(found(), IsEmpty());
        home.file(c.file, "");
    }
}

TEST_F(SyncRootsTest, settingsThatAreNoFilesAreNotWaitedFor)
{
    home.folder(".dropbox");
    ASSERT_EQ(::mkfifo(home.path(".dropbox/info.json").c_str(), 0600), 0);
    home.folder(".config/onedrive/config");
    home.link(".config/Nextcloud/nextcloud.cfg", home.file("real.cfg", "localPath=" + home.path("x")));
    EXPECT_THAT(found(), IsEmpty());
}

TEST_F(SyncRootsTest, defaultFoldersCountWhenTheyExist)
{
    home.folder("Google Drive");
    home.folder("Sync");
    home.folder("dropbox");
    home.file("Seafile", "a file");
    home.link("MEGA", home.outside("Library"));
    EXPECT_THAT(found(), ElementsAre(home.path("Google Drive"), home.path("MEGA")));
}

TEST_F(SyncRootsTest, markersAreFoundTwoLevelsDeep)
{
    home.folder("one/.stfolder");
    home.file("two/a/.sync_1a2b.db");
    home.file("two/b/._sync_1a2b.db");
    home.file(".hidden/c/.nextcloudsync.log");
    home.file("two/d/.owncloudsync.log");
    home.folder("too/deep/by/.stfolder");
    home.file("two/e/.sync_1a2b.db-wal");
    home.link("linked", home.path("too/deep"));
    home.folder("too/deep/one/.stfolder");
    EXPECT_THAT(found(), UnorderedElementsAre(home.path("one"), home.path("two/a"), home.path("two/b"),
                                              home.path(".hidden/c"), home.path("two/d")));
}

TEST_F(SyncRootsTest, foreignMountsAreNotLookedInto)
{
    home.folder("nas/.stfolder");
    home.folder("Dropbox");
    home.file(".config/onedrive/config", "sync_dir=~/x\n");
    HomeMounts mounts;
    mounts.foreign = {home.path("nas"), home.path("Dropbox"), home.path(".config")};
    EXPECT_THAT(found(mounts), IsEmpty());
    EXPECT_EQ(found().size(), 3U);
}

TEST_F(SyncRootsTest, namesOfMarkers)
{
    std::vector<std::string> expected;
    for (const char* name : {".stfolder", ".sync_.db", "._sync_ab.db", ".nextcloudsync.log",
                             ".owncloudsync.log", ".megaignore", ".debris", ".sync.ffs_db", ".sync/ID"}) {
        expected.push_back(home.path("yes" + std::to_string(expected.size())));
        home.file(expected.back() + "/" + name);
    }
    int count = 0;
    for (const char* name : {".db", "sync_a.db", ".sync_a.db2", ".syncx.db", ".stfolder2", "x.stfolder",
                             ".sync/other", "ID", "debris", "a.ffs_db"})
        home.file("no" + std::to_string(++count) + "/" + name);
    home.file("elsewhere/deep/er/ID");
    home.link("no0/.sync", home.path("elsewhere/deep/er"));
    EXPECT_THAT(found(), testing::ElementsAreArray(expected));
}

} // namespace
} // namespace orlen

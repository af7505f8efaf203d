#include "clean/Safety.h"
#include "platform/desktop/RecentDocuments.h"
#include "platform/files/FileStatus.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/locations/LocationScanners.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

using namespace std::chrono;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

const TimePoint kNow = TimePoint(sys_days(2025y / June / 15)) + hours(12);

class OldDownloadsTest : public testing::Test {
protected:
    OldDownloadsTest() { reload(); }

    /// `options`: those of the mount that holds the home folder.
    void reload(const std::string& options = "rw,relatime") const
    {
        const auto status = statusOf(home.path());
        const std::string table = home.file(home.outside(std::string("mounts-") + options),
                                            std::to_string(status.value().mount) + " 1 8:1 / / " + options +
                                                " - ext4 /dev/sda1 rw\n");
        TempHome::reloadPlaces([&](Places& places) { places.mountTable = table; });
        Safety::refresh();
    }

    std::string download(const std::string& name, days opened, days changed, std::int64_t bytes = 4096) const
    {
        std::string path = home.fileOfSize(name, bytes);
        TempHome::setTimes(path, kNow - opened, kNow - changed);
        return path;
    }

    [[nodiscard]] std::vector<FileEntry> scan() const
    {
        return LocationScanners(progress, flag.token())
            .downloads(kNow, RecentDocuments::ofUser(Places::current()))
            .front()
            .items;
    }

    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const FileEntry& entry : scan())
            names.push_back(entry.path.substr(home.path().size() + 1));
        return names;
    }

    TempHome home;
    mutable ScanProgress progress;
    ScanFlag flag;
};

TEST_F(OldDownloadsTest, lastOpenedDateDecidesToTheSecond)
{
    download("Downloads/opened31", days(31), days(31));
    download("Downloads/opened29", days(29), days(365));
    const std::string on = download("Downloads/on", days(31), days(31));
    TempHome::setTimes(on, kNow - days(30), kNow - days(400));
    const std::string past = download("Downloads/past", days(31), days(31));
    TempHome::setTimes(past, kNow - days(30) - seconds(1), kNow);
    EXPECT_THAT(names(), UnorderedElementsAre("Downloads/opened31", "Downloads/past"));
    for (const FileEntry& entry : scan()) {
        if (entry.path == past) {
            EXPECT_EQ(entry.lastOpened, kNow - days(30) - seconds(1));
            EXPECT_EQ(entry.modified, kNow);
        }
    }
}

TEST_F(OldDownloadsTest, recentDocumentsCountAsOpened)
{
    download("Downloads/seen here", days(100), days(100));
    download("Downloads/never", days(100), days(100));
    home.file(".local/share/recently-used.xbel", "<xbel><bookmark href=\"file://" +
                                                     home.path("Downloads/seen%20here") +
                                                     "\" visited=\"2025-06-01T00:00:00.5Z\"/></xbel>");
    EXPECT_THAT(names(), ElementsAre("Downloads/never"));
}

TEST_F(OldDownloadsTest, withoutAccessTimesTheLastChangeCounts)
{
    download("Downloads/changed long ago", days(1), days(100));
    EXPECT_THAT(names(), IsEmpty());
    reload("rw,noatime");
    EXPECT_THAT(names(), ElementsAre("Downloads/changed long ago"));
    EXPECT_EQ(scan().front().lastOpened, std::nullopt) << "a change is no opening";
}

TEST_F(OldDownloadsTest, bothDownloadsFoldersAreReadOnceEach)
{
    for (const char* set : {"$HOME/Downloads", "$HOME/Téléchargements", "$HOME/Downloads/inner",
                            "$HOME/Downloads/a/inner", "$HOME"}) {
        SCOPED_TRACE(set);
        const TempHome fresh;
        home.file(".config/user-dirs.dirs", std::string("XDG_DOWNLOAD_DIR=\"") + set + "\"\n");
        const std::string second = std::string(set) == "$HOME" ? "Downloads" : std::string(set).substr(6);
        download(second + "/x", days(40), days(40));
        download("Downloads/y", days(40), days(40));
        for (const char* folder : {"Downloads/inner", "Downloads/a"}) {
            if (TempHome::exists(home.path(folder)))
                TempHome::setTimes(home.path(folder), kNow - days(40), kNow - days(40));
        }
        reload();
        EXPECT_THAT(names(), UnorderedElementsAre(second + "/x", "Downloads/y"));
    }
}

TEST_F(OldDownloadsTest, repositoriesAreNoted)
{
    home.file("Downloads/project/.git/HEAD");
    home.file("Downloads/worktree/.git", "gitdir: x");
    home.file("Downloads/plain/sub/.git/HEAD");
    for (const char* name : {"project", "worktree", "plain"})
        TempHome::setTimes(home.path(std::string("Downloads/") + name), kNow - days(40), kNow - days(40));
    const std::vector<FileEntry> entries = scan();
    ASSERT_EQ(entries.size(), 3U);
    for (const FileEntry& entry : entries) {
        const bool isNoted = !entry.path.ends_with("plain");
        EXPECT_EQ(noteOf(entry).base(), isNoted ? "Contains a repository" : "");
    }
}

TEST_F(OldDownloadsTest, localisedFolderFollowsTheDesktopsRules)
{
    home.file(".config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Laden\"\n");
    for (const char* folder : {"Downloads", "Laden"}) {
        const std::string target = download(std::string(folder) + "/file", days(40), days(40));
        TempHome::setTimes(home.link(std::string(folder) + "/link", target), kNow - days(40),
                           kNow - days(40));
        download(std::string(folder) + "/locked/x", days(40), days(40));
        TempHome::setTimes(home.path(std::string(folder) + "/locked"), kNow - days(40), kNow - days(40));
        TempHome::setMode(home.path(std::string(folder) + "/locked"), 0555);
        download(std::string(folder) + "/bad\xFF", days(40), days(40));
    }
    reload();
    EXPECT_THAT(names(),
                UnorderedElementsAre("Downloads/file", "Downloads/link", "Downloads/locked", "Laden/file"));
}

TEST_F(OldDownloadsTest, missingOrUnreadableFolderAndCancelledScanGiveNothing)
{
    EXPECT_THAT(names(), IsEmpty());
    download("Downloads/x", days(40), days(40));
    TempHome::setMode(home.path("Downloads"), 0);
    EXPECT_THAT(names(), IsEmpty());
    TempHome::setMode(home.path("Downloads"), 0700);
    EXPECT_THAT(names(), ElementsAre("Downloads/x"));
    flag.cancel();
    EXPECT_THAT(names(), IsEmpty());
}

} // namespace
} // namespace orlen

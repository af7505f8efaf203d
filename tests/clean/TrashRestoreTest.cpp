#include "clean/TrashFixture.h"

#include <gmock/gmock.h>

#include <cerrno>
#include <cstdio>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using std::chrono::hours;
using std::chrono::seconds;
using testing::ElementsAre;

class TrashRestoreTest : public TrashFixture {};

} // namespace

TEST_F(TrashRestoreTest, refusesAnItemThatTheNameNoLongerStandsFor)
{
    const std::string path = home.path("a");
    // The zone of the tests' machine must not matter: the date is what this process writes itself.
    const std::string in = trashed(home.file("a"));
    const auto deleted = TrashInfo::parse(TempHome::content(infoFile(in)))->deleted;
    ASSERT_TRUE(deleted.has_value());
    struct Case {
        const char* name;
        std::string info;
        TimePoint cleaned;
        int error;
    };
    const auto dated = [&](TimePoint time) { return TrashInfo::text(path, time); };
    const Case cases[] = {
        {"two hours later", dated(*deleted + hours(2)), *deleted, 0},
        {"a second more", dated(*deleted + hours(2) + seconds(1)), *deleted, ESTALE},
        {"long before", dated(*deleted - hours(9000)), *deleted, 0},
        {"from another place", TrashInfo::text(home.path("b"), *deleted), *deleted, ESTALE},
        {"without a date", "[Trash Info]\nPath=" + path + "\n", *deleted, ESTALE},
        {"with an impossible date", infoText(path, "2025-13-01T00:00:00"), *deleted, ESTALE},
        {"empty", "", *deleted, ESTALE},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        (void)home.file(infoFile(in), c.info);
        EXPECT_EQ(Trash::moveBack(in, path, c.cleaned).error(), c.error);
        EXPECT_EQ(TempHome::exists(path), c.error == 0);
        EXPECT_EQ(TempHome::exists(infoFile(in)), c.error != 0);
        if (c.error == 0) {
            ASSERT_EQ(std::rename(path.c_str(), in.c_str()), 0);
        }
    }
    ASSERT_EQ(std::remove(infoFile(in).c_str()), 0);
    EXPECT_TRUE(Trash::moveBack(in, path, *deleted).ok()) << "no info file speaks against it";
}

TEST_F(TrashRestoreTest, refusesATakenOrUnsafePlace)
{
    const std::string in = trashed(home.file("a", "old"));
    (void)home.file("a", "new");
    EXPECT_EQ(Trash::moveBack(in, home.path("a"), now()).error(), EEXIST);
    EXPECT_EQ(TempHome::content(home.path("a")), "new");

    const std::string deep = trashed(home.file("way/b"));
    ASSERT_EQ(::rmdir(home.path("way").c_str()), 0);
    (void)home.folder(".ssh");
    (void)home.link("way", home.path(".ssh"));
    EXPECT_EQ(Trash::moveBack(deep, home.path("way/b"), now()).error(), EPERM);
    EXPECT_EQ(Trash::moveBack(deep, home.outside("system/b"), now()).error(), EPERM);

    EXPECT_EQ(TempHome::content(in), "old");
    EXPECT_THAT(sortedNames(info()), ElementsAre("a.trashinfo", "b.trashinfo"));
}

TEST_F(TrashRestoreTest, takesItemsFromATrashOnly)
{
    (void)home.file("files/a");
    (void)home.file("lone/files/a");
    (void)home.file("mine/b");
    (void)home.folder("mine/info");
    for (const char* name : {"files/a", "lone/files/a", "mine/b", ".local/share/Trash/files/../../../b"})
        EXPECT_FALSE(Trash::moveBack(home.path(name), home.path("back"), now()).ok()) << name;
    EXPECT_FALSE(Trash::moveBack("", home.path("back"), now()).ok());
    EXPECT_FALSE(TempHome::exists(home.path("back")));
}

TEST_F(TrashRestoreTest, makesMissingFolders)
{
    const mode_t mask = ::umask(022);
    const std::string shown = trashed(home.file("one/two/a"));
    const std::string hidden = trashed(home.file(".config/app/b"));
    ASSERT_EQ(std::rename(home.path("one").c_str(), home.path("aside").c_str()), 0);
    ASSERT_EQ(std::rename(home.path(".config").c_str(), home.path("aside2").c_str()), 0);
    EXPECT_TRUE(Trash::moveBack(shown, home.path("one/two/a"), now()).ok());
    EXPECT_TRUE(Trash::moveBack(hidden, home.path(".config/app/b"), now()).ok());
    (void)::umask(mask);
    EXPECT_EQ(statusOf(home.path("one/two")).value().mode, 0755U);
    EXPECT_EQ(statusOf(home.path(".config/app")).value().mode, 0700U);
    EXPECT_TRUE(TempHome::exists(home.path("one/two/a")) && TempHome::exists(home.path(".config/app/b")));
}

TEST_F(TrashRestoreTest, readsTheInfoFilesOfOthersAndNothingElse)
{
    struct Case {
        const char* name;
        std::string info;
        const char* original;
    };
    const Case cases[] = {
        {"plain", infoText("/home/b/a%20b", "2025-01-01T00:00:00"), "/home/b/a b"},
        {"unencoded", infoText("/home/b/a b", "2025-01-01T00:00:00"), "/home/b/a b"},
        {"other keys and order", "[Trash Info]\nX=1\nDeletionDate=x\nPath=/a\nPath=/b\n", "/a"},
        {"line ends of another system", "[Trash Info]\r\nPath=/a\r\n", "/a"},
        {"no last line end", "[Trash Info]\nPath=/a", "/a"},
        {"another group's key", "[Trash Info]\n[Other]\nPath=/a\n", ""},
        {"no heading", "Path=/a\n", ""},
        {"no path", "[Trash Info]\nDeletionDate=2025-01-01T00:00:00\n", ""},
        {"half a byte", infoText("/a%2", "2025-01-01T00:00:00"), ""},
        {"no digits", infoText("/a%zz", "2025-01-01T00:00:00"), ""},
        {"relative in the home Trash", infoText("a", "2025-01-01T00:00:00"), ""},
        {"climbing", infoText("/a/../b", "2025-01-01T00:00:00"), ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(Trash::originalPath(plant("item", c.info)), c.original);
    }
    EXPECT_EQ(Trash::originalPath(home.file(files() + "/without-info")), "");
    EXPECT_EQ(Trash::originalPath(home.path("a")), "");
}

} // namespace orlen

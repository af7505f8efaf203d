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
using testing::ElementsAre;

class TrashRestoreTest : public TrashFixture {};

} // namespace

TEST_F(TrashRestoreTest, refusesAnItemThatTheNameNoLongerStandsFor)
{
    const std::string path = home.path("a");
    const std::string in = trashed(home.file("a"));
    const LastingIdentity own = statusOf(in).value().lasting();
    const LastingIdentity other{own.number + 1, own.born};
    const TimePoint moved = std::chrono::system_clock::now();
    struct Case {
        const char* name;
        std::optional<std::string> infoText; ///< nothing: the info file is gone
        Trash::Recognition recognition;
        int error;
    };
    const LastingIdentity reborn{own.number, moved + hours(1)};
    const std::string info = TrashInfo::text(path, moved);
    const Case cases[] = {
        {"its number", info, {own, moved}, 0},
        {"its number, long ago", info, {own, moved - hours(9000)}, 0},
        {"its number, the info file in another zone",
         TrashInfo::text(path, moved + hours(14)),
         {own, moved},
         0},
        {"its number without an info file", std::nullopt, {own, moved}, 0},
        {"another number", info, {other, moved}, ESTALE},
        {"a new file of its number", info, {reborn, moved}, ESTALE},
        {"another number without an info file", std::nullopt, {other, moved}, ESTALE},
        {"its number, from another place", TrashInfo::text(home.path("b"), moved), {own, moved}, ESTALE},
        {"its number, an illegible info file", "", {own, moved}, ESTALE},
        {"its number, a zero byte in the path",
         infoText(path + "%00", "2025-03-01T00:00:00"),
         {own, moved},
         ESTALE},
        {"no number, in time", info, {std::nullopt, moved + hours(1)}, 0},
        {"no number, moved after the clean-up", info, {std::nullopt, moved - hours(1)}, ESTALE},
        {"no number and no date in the file",
         "[Trash Info]\nPath=" + path + "\n",
         {std::nullopt, moved + hours(1)},
         0},
        {"no number and no info file", std::nullopt, {std::nullopt, moved + hours(1)}, 0},
        {"the same, moved after the clean-up", std::nullopt, {std::nullopt, moved - hours(1)}, ESTALE},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        (void)std::remove(infoFile(in).c_str());
        if (c.infoText)
            (void)home.file(infoFile(in), *c.infoText);
        EXPECT_EQ(Trash::moveBack(in, path, c.recognition).error(), c.error);
        EXPECT_EQ(TempHome::exists(path), c.error == 0);
        EXPECT_EQ(TempHome::exists(infoFile(in)), c.error != 0 && c.infoText);
        if (c.error == 0) {
            ASSERT_EQ(std::rename(path.c_str(), in.c_str()), 0);
        }
    }
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

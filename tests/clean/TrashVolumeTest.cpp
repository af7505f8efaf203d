#include "clean/Safety.h"
#include "clean/TrashProbe.h"
#include "clean/trash/Trash.h"
#include "support/PrivateMounts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <functional>
#include <unistd.h>

namespace orlen {

namespace {

using namespace TrashProbe;
using testing::IsEmpty;

/// A second volume below the home folder: a folder that is also mounted at "disk", which no rename crosses.
class TrashVolumeTest : public testing::Test {
protected:
    void SetUp() override
    {
        if (!mounts.obstacle().empty())
            GTEST_SKIP() << mounts.obstacle();
        ASSERT_TRUE(mounts.bind(home.folder("behind"), home.folder("disk")));
        Safety::refresh();
        if (Safety::isProtected(disk + "/a"))
            GTEST_SKIP() << "the temporary folder's file system counts as foreign";
    }

    static Trash::Recognition now() { return {std::nullopt, std::chrono::system_clock::now()}; }

    TempHome home;
    PrivateMounts mounts;
    std::string disk = home.path("disk");
    std::string user = std::to_string(::geteuid());
    std::string own = disk + "/.Trash-" + user;
    std::string shared = disk + "/.Trash";
    std::string homeInfo = home.path(".local/share/Trash/info");
};

} // namespace

TEST_F(TrashVolumeTest, anEntryOnAnotherVolumeGoesToTheTrashThere)
{
    const std::string path = home.file("disk/papers/a b.txt", "content");
    const FileIdentity before = identity(path);
    const auto in = Trash::moveIn(path, 1);
    ASSERT_TRUE(in.ok()) << in.error();
    EXPECT_EQ(in.value(), own + "/files/a b.txt");
    EXPECT_EQ(identity(in.value()), before);
    EXPECT_EQ(pathLine(in.value()), "papers/a%20b.txt");
    EXPECT_EQ(Trash::originalPath(in.value()), path);
    EXPECT_EQ(statusOf(own).value().mode, 0700U);
    EXPECT_THAT(listNames(homeInfo), IsEmpty());
    ASSERT_TRUE(Trash::moveBack(in.value(), path, now()).ok());
    EXPECT_EQ(identity(path), before);
    EXPECT_THAT(listNames(own + "/info"), IsEmpty());
}

TEST_F(TrashVolumeTest, aFileSystemOfItsOwnIsSuchAVolume)
{
    if (!mounts.disk(home.path("image"), home.folder("second")))
        GTEST_SKIP() << "no image file can be mounted here";
    ASSERT_EQ(::chown(home.path("second").c_str(), ::geteuid(), ::getegid()), 0);
    Safety::refresh();
    const std::string path = home.folder("second/deep/folder");
    ASSERT_NE(identity(path).device, identity(home.path()).device);
    const auto in = Trash::moveIn(path, 4096);
    ASSERT_TRUE(in.ok()) << in.error();
    EXPECT_EQ(in.value(), home.path("second/.Trash-" + user + "/files/folder"));
    EXPECT_TRUE(Trash::moveBack(in.value(), path, now()).ok());
    EXPECT_EQ(Trash::moveIn(home.path("second/lost+found")).ok(), ::geteuid() == 0);
    EXPECT_FALSE(Trash::moveBack(in.value(), home.path("folder"), now()).ok()) << "nothing there any more";
}

TEST_F(TrashVolumeTest, nothingIsCopiedBackAcrossVolumes)
{
    const auto in = Trash::moveIn(home.file("disk/a"));
    ASSERT_TRUE(in.ok());
    // A record that names another place, with an info file that agrees.
    (void)home.file(infoFile(in.value()), TrashInfo::text(home.path("a"), now().noLaterThan));
    EXPECT_EQ(Trash::moveBack(in.value(), home.path("a"), now()).error(), EXDEV);
    EXPECT_TRUE(TempHome::exists(in.value()) && TempHome::exists(infoFile(in.value())));
}

TEST_F(TrashVolumeTest, theWayThroughALinkIsRememberedAsItWasTaken)
{
    (void)home.file("disk/sub/a");
    (void)home.link("short", disk + "/sub");
    const auto in = Trash::moveIn(home.path("short/a"));
    ASSERT_TRUE(in.ok()) << in.error();
    EXPECT_EQ(pathLine(in.value()), "sub/a");
    EXPECT_TRUE(Trash::moveBack(in.value(), home.path("short/a"), now()).ok());
    EXPECT_TRUE(TempHome::exists(disk + "/sub/a"));
}

TEST_F(TrashVolumeTest, theSharedTrashIsUsedOnlyWhenItIsSafe)
{
    const auto makeShared = [this](unsigned mode) { TempHome::setMode(home.folder(shared), mode); };
    const std::string bait = home.folder("disk/bait");
    struct Case {
        const char* name;
        std::function<void()> prepare;
        std::string expected;
    };
    const Case cases[] = {
        {"sticky", [&] { makeShared(01777); }, shared + "/" + user},
        {"not sticky", [&] { makeShared(0777); }, own},
        {"a link", [&] { (void)home.link(shared, bait); }, own},
        {"a file", [&] { (void)home.file(shared); }, own},
        {"the user's part is a link",
         [&] {
             makeShared(01777);
             (void)home.link(shared + "/" + user, bait);
         },
         own},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        c.prepare();
        const std::string path = home.file("disk/" + std::string(c.name));
        const auto in = Trash::moveIn(path);
        ASSERT_TRUE(in.ok()) << in.error();
        EXPECT_EQ(in.value(), c.expected + "/files/" + c.name);
        EXPECT_EQ(Trash::originalPath(in.value()), path);
        EXPECT_TRUE(Trash::moveBack(in.value(), path, now()).ok());
        ASSERT_EQ(std::rename(shared.c_str(), (disk + "/was " + c.name).c_str()), 0);
    }
    EXPECT_THAT(listNames(bait), IsEmpty());
}

TEST_F(TrashVolumeTest, withoutAUsableTrashTheEntryStays)
{
    const std::string bait = home.folder("disk/bait");
    struct Case {
        const char* name;
        std::function<bool()> prepare;
    };
    const Case cases[] = {
        {"a link", [&] { return !home.link(own, bait).empty(); }},
        {"a file", [&] { return !home.file(own).empty(); }},
        {"somebody else's", [&] { return ::chown(home.folder(own).c_str(), 12345, 12345) == 0; }},
        {"on another volume", [&] { return mounts.bind(bait, home.folder(own)); }},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        if (!c.prepare())
            continue; // only root can give a folder away
        const std::string path = home.file("disk/a");
        EXPECT_EQ(Trash::moveIn(path).error(), EXDEV);
        EXPECT_TRUE(TempHome::exists(path));
        EXPECT_THAT(listNames(bait), IsEmpty());
        EXPECT_THAT(listNames(homeInfo), IsEmpty());
        (void)std::rename(own.c_str(), (disk + "/was " + c.name).c_str());
    }
}

TEST_F(TrashVolumeTest, aMountPointItselfIsNotMoved)
{
    EXPECT_EQ(Trash::moveIn(disk).error(), EPERM);
    EXPECT_THAT(listNames(homeInfo), IsEmpty());
}

TEST_F(TrashVolumeTest, noTrashIsMadeWhereNothingMayBeTouched)
{
    // The data folder lies on another volume than the home folder, whose own top is outside the home folder.
    const std::string path = home.file("a");
    ASSERT_TRUE(mounts.bind(home.folder("data"), home.folder(".local/share")));
    Safety::refresh();
    EXPECT_EQ(Trash::moveIn(path).error(), EXDEV);
    EXPECT_TRUE(TempHome::exists(path));
    EXPECT_THAT(listNames(homeInfo), IsEmpty());
}

TEST_F(TrashVolumeTest, aHomeFolderThatIsAVolumeMayHaveATrashAtItsTop)
{
    const std::string path = home.file("a");
    ASSERT_TRUE(mounts.bind(home.path(), home.path()));
    ASSERT_TRUE(mounts.bind(home.folder("data"), home.folder(".local/share")));
    Safety::refresh();
    const auto in = Trash::moveIn(path);
    ASSERT_TRUE(in.ok()) << in.error();
    EXPECT_EQ(in.value(), home.path(".Trash-" + user + "/files/a"));
    EXPECT_EQ(pathLine(in.value()), "a");
    EXPECT_TRUE(Trash::moveBack(in.value(), path, now()).ok());
}

} // namespace orlen

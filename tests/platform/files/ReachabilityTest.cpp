#include "platform/files/Reachability.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileLock.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/MountProbe.h"
#include "platform/files/OwnFile.h"
#include "platform/files/Volume.h"
#include "platform/process/ChildEnd.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <thread>
#include <unistd.h>

namespace orlen {
namespace {

using Reachability::LastLink;
using testing::ElementsAre;
using testing::IsEmpty;

/// A mount table that says of some folders that they come from elsewhere.
class ReachabilityTest : public testing::Test {
protected:
    ReachabilityTest()
    {
        const std::string points[][2] = {
            {"ext4", "/"},
            {"fuse.sshfs", home.folder("nas")},
            {"ext4", home.folder("disk")},
            {"tmpfs", home.folder("memory")},
            {"nfs4", home.folder("hidden")},
            {"xfs", home.folder("hidden")},
            {"nfs4", home.folder(home.outside("share"))},
        };
        std::string table;
        for (const auto& [type, point] : points)
            table += std::to_string(++lastMount) + " 1 0:9 / " + point + " rw - " + type + " none rw\n";
        table = home.file(home.outside("mountinfo"), table);
        home.file("nas/file");
        TempHome::reloadPlaces([&](Places& places) { places.mountTable = table; });
    }
    ~ReachabilityTest() override { TempHome::reloadPlaces(); }

    static inline int lastMount = 100'000;
    TempHome home;
};

TEST_F(ReachabilityTest, aPathIsJudgedByWhereItLeads)
{
    home.link("toNas", home.path("nas"));
    home.link("toLink", "toNas");
    home.link("disk/back", "../nas/file");
    home.link("loop", "loop");
    home.link("dangling", "nowhere/at/all");
    struct Case {
        const char* name;
        const char* path;
        LastLink last;
        bool isReachable;
    };
    const Case cases[] = {
        {"a mount from elsewhere", "nas", LastLink::kept, false},
        {"below it", "nas/a/b", LastLink::kept, false},
        {"a name that begins alike", "nasty", LastLink::kept, true},
        {"a disk", "disk/a", LastLink::followed, true},
        {"memory", "memory/a", LastLink::followed, true},
        {"hidden by a disk", "hidden/a", LastLink::followed, true},
        {"missing", "missing/a", LastLink::followed, true},
        {"a link itself", "toNas", LastLink::kept, true},
        {"what it names", "toNas", LastLink::followed, false},
        {"a slash follows it", "toNas/", LastLink::kept, false},
        {"so does a dot", "toNas/.", LastLink::kept, false},
        {"through a link", "toNas/file", LastLink::kept, false},
        {"through two", "toLink/file", LastLink::kept, false},
        {"a relative link", "disk/back", LastLink::followed, false},
        {"in and out again", "toNas/../disk", LastLink::kept, false},
        {"round about", "disk/../nas/./file", LastLink::kept, false},
        {"round about to a disk", "memory/../disk/a", LastLink::kept, true},
        {"a loop", "loop/a", LastLink::followed, true},
        {"a dangling link", "dangling/a", LastLink::followed, true},
        {"outside the home folder it is asked", "../share/a", LastLink::kept, true},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const auto judged = Reachability::check(home.path(c.path), c.last);
        EXPECT_EQ(judged.error(), c.isReachable ? 0 : ETIMEDOUT);
    }
}

TEST_F(ReachabilityTest, noFunctionTouchesWhatIsLeftOut)
{
    const std::string file = home.path("nas/file");
    const std::string other = home.path("nas/new");
    EXPECT_EQ(statusOf(file).error(), ETIMEDOUT);
    EXPECT_EQ(openFile(file).error(), ETIMEDOUT);
    EXPECT_EQ(openFolder(home.path("nas")).error(), ETIMEDOUT);
    EXPECT_EQ(openUnlinkedFolder(home.path("nas")).error(), ETIMEDOUT);
    EXPECT_EQ(makeFolders(other, 0700).error(), ETIMEDOUT);
    EXPECT_EQ(OwnFile::replace(file, "y").error(), ETIMEDOUT);
    EXPECT_EQ(OwnFile::writeNew(other, "y").error(), ETIMEDOUT);
    EXPECT_EQ(OwnFile::remove(file).error(), ETIMEDOUT);
    EXPECT_EQ(FileLock::take(other).error(), ETIMEDOUT);
    EXPECT_EQ(volumeSpace(file).error(), ETIMEDOUT);
    EXPECT_EQ(readSmallFile(file, 10), std::nullopt);
    EXPECT_EQ(resolved(file), "");
    EXPECT_FALSE(isWritable(file));
    EXPECT_FALSE(isDeletable(file));
    EXPECT_EQ(TempHome::content(file), "x");
}

TEST_F(ReachabilityTest, whatIsNamedIsAskedAndThenKnown)
{
    const std::string nas = home.path("nas");
    EXPECT_THAT(Reachability::leftOut(), IsEmpty()) << "nobody has looked there";
    EXPECT_FALSE(exists(nas));
    EXPECT_THAT(Reachability::leftOut(),
                ElementsAre(Reachability::LeftOut{nas, Reachability::LeftOut::Reason::unasked}));
    EXPECT_TRUE(Reachability::admit(nas + "/file").ok());
    EXPECT_TRUE(exists(nas + "/file"));
    EXPECT_THAT(Reachability::leftOut(), IsEmpty());
}

TEST(MountProbeTest, anErrorIsAnAnswerToo)
{
    const TempHome home;
    for (const std::string& folder : {home.path(), home.path("missing"), home.file("file")}) {
        MountProbe probe(folder);
        EXPECT_FALSE(probe.isAsked());
        EXPECT_TRUE(probe.answers()) << folder;
        EXPECT_TRUE(probe.hasAnswered());
    }
}

TEST(ChildEndTest, aProcessThatDoesNotEndIsNotWaitedForAndLeavesNothingBehind)
{
    const pid_t child = ::fork();
    if (child == 0) {
        ::usleep(500'000);
        ::_exit(0);
    }
    ChildEnd::awaitKilled(child);
    EXPECT_EQ(::kill(child, 0), 0) << "it still runs";
    while (::kill(child, 0) == 0)
        std::this_thread::sleep_for(std::chrono::milliseconds(20));
}

} // namespace
} // namespace orlen

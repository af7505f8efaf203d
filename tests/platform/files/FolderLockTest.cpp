#include "platform/files/FolderLock.h"

#include "platform/files/Folder.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <sys/wait.h>
#include <unistd.h>

namespace orlen {

TEST(FolderLockTest, isHeldUntilDestroyedAndLeavesNoFile)
{
    const TempHome home;
    const std::string folder = home.folder("data");
    auto first = FolderLock::take(folder);
    ASSERT_TRUE(first.ok());
    EXPECT_EQ(FolderLock::take(folder).error(), EWOULDBLOCK);
    EXPECT_TRUE(listNames(folder).empty());
    const auto moved = std::move(first);
    EXPECT_FALSE(FolderLock::take(folder).ok()) << "moving it keeps it";
}

TEST(FolderLockTest, isFreeAgainAfterRelease)
{
    const TempHome home;
    const std::string folder = home.folder("data");
    (void)FolderLock::take(folder);
    EXPECT_TRUE(FolderLock::take(folder).ok());
}

TEST(FolderLockTest, cannotBeTakenOnWhatIsNoFolder)
{
    const TempHome home;
    EXPECT_EQ(FolderLock::take(home.path("missing")).error(), ENOENT);
    EXPECT_EQ(FolderLock::take(home.file("file")).error(), ENOTDIR);
}

TEST(FolderLockTest, aLinkLocksTheFolderItLeadsTo)
{
    const TempHome home;
    const std::string folder = home.folder("data");
    const auto lock = FolderLock::take(home.link("link", folder));
    ASSERT_TRUE(lock.ok());
    EXPECT_FALSE(FolderLock::take(folder).ok());
}

TEST(FolderLockTest, isFreeAfterItsProcessWasKilled)
{
    const TempHome home;
    const std::string folder = home.folder("data");
    int ready[2];
    ASSERT_EQ(::pipe(ready), 0);
    const pid_t child = ::fork();
    if (child == 0) {
        const auto lock = FolderLock::take(folder);
        (void)!::write(ready[1], lock.ok() ? "y" : "n", 1);
        ::pause();
        ::_exit(0);
    }
    char answer = 0;
    ASSERT_EQ(::read(ready[0], &answer, 1), 1);
    EXPECT_EQ(answer, 'y');
    EXPECT_FALSE(FolderLock::take(folder).ok());
    ::kill(child, SIGKILL);
    ::waitpid(child, nullptr, 0);
    EXPECT_TRUE(FolderLock::take(folder).ok());
    ::close(ready[0]);
    ::close(ready[1]);
}

} // namespace orlen

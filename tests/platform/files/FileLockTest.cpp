#include "platform/files/FileLock.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <cerrno>

namespace orlen {

TEST(FileLockTest, isHeldUntilDestroyedAndLeavesAnEmptyFile)
{
    const TempHome home;
    const std::string path = home.path("lock");
    {
        const auto first = FileLock::take(path);
        ASSERT_TRUE(first.ok());
        EXPECT_EQ(FileLock::take(path).error(), EWOULDBLOCK);
    }
    EXPECT_EQ(TempHome::content(path), "");
    EXPECT_TRUE(FileLock::take(path).ok());
}

TEST(FileLockTest, tellsAFileThatCannotBeMadeFromOneThatIsHeld)
{
    const TempHome home;
    EXPECT_EQ(FileLock::take(home.path("missing/lock")).error(), ENOENT);
    EXPECT_EQ(FileLock::take(home.link("link", home.file("target", "kept"))).error(), ELOOP);
}

} // namespace orlen

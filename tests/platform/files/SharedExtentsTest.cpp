#include "platform/files/SharedExtents.h"

#include "support/TempHome.h"

#include <fcntl.h>
#include <filesystem>
#include <fstream>
#include <gtest/gtest.h>
#include <linux/fs.h>
#include <sys/ioctl.h>
#include <unistd.h>

namespace orlen {
namespace {

constexpr std::int64_t kLength = 1'048'576;

/// Makes a copy by reference; false where the file system has none.
bool cloneFile(const std::string& from, const std::string& to)
{
    const int source = ::open(from.c_str(), O_RDONLY | O_CLOEXEC);
    const int target = ::open(to.c_str(), O_WRONLY | O_CREAT | O_CLOEXEC, 0600);
    const bool worked = ::ioctl(target, FICLONE, source) == 0 && ::fsync(target) == 0;
    ::close(source);
    ::close(target);
    return worked;
}

void overwrite(const std::string& path, std::streamoff offset)
{
    std::fstream file(path, std::ios::in | std::ios::out | std::ios::binary);
    file.seekp(offset).put('#');
    file.close();
    const int again = ::open(path.c_str(), O_RDONLY | O_CLOEXEC);
    ::fsync(again);
    ::close(again);
}

TEST(SharedExtentsTest, filesWithDataOfTheirOwnDoNotShareIt)
{
    const TempHome home;
    const std::string a = home.fileOfSize("a", kLength);
    const std::string b = home.fileOfSize("b", kLength);
    const std::string empty = home.file("empty", "");
    const std::string link = home.link("link", a);
    const std::string folder = home.folder("folder");
    EXPECT_FALSE(shareAllExtents(a, b)) << "a full copy";
    EXPECT_FALSE(shareAllExtents(empty, home.file("empty too", ""))) << "nothing to share";
    for (const std::string& other : {empty, link, folder, home.path("missing")}) {
        EXPECT_FALSE(shareAllExtents(a, other)) << other;
        EXPECT_FALSE(shareAllExtents(other, a)) << other;
    }
}

TEST(SharedExtentsTest, copiesByReferenceShareUntilOneIsChanged)
{
    const TempHome home;
    const std::string a = home.fileOfSize("a", kLength);
    const std::string b = home.path("b");
    const std::string c = home.path("c");
    overwrite(a, 0); // on disk before it is copied
    if (!cloneFile(a, b) || !cloneFile(a, c))
        GTEST_SKIP() << "this file system makes no copies by reference";
    EXPECT_TRUE(shareAllExtents(a, b));
    EXPECT_TRUE(shareAllExtents(b, c));

    overwrite(b, kLength / 2);
    EXPECT_FALSE(shareAllExtents(a, b)) << "one block has become its own";
    EXPECT_TRUE(shareAllExtents(a, c));

    std::filesystem::resize_file(c, kLength / 4);
    EXPECT_FALSE(shareAllExtents(a, c)) << "the shorter file shares only the beginning";
}

} // namespace
} // namespace orlen

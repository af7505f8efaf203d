#include "platform/files/FileStatus.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <filesystem>
#include <sys/stat.h>
#include <unistd.h>

namespace orlen {
namespace {

using namespace std::chrono_literals;

TEST(FileStatusTest, linkIsDescribedItself)
{
    const TempHome home;
    home.file("target", "0123456789");
    const auto status = statusOf(home.link("link", "target"));
    ASSERT_TRUE(status.ok());
    EXPECT_EQ(status.value().type, FileType::link);
    EXPECT_EQ(status.value().length, 6);
    EXPECT_TRUE(exists(home.link("dangling", "nowhere")));
    EXPECT_FALSE(isRealFolder(home.link("linked folder", home.folder("folder"))));
    EXPECT_TRUE(isRealFolder(home.path("folder")));
    EXPECT_EQ(statusOf(home.path("missing")).error(), ENOENT);
}

TEST(FileStatusTest, sizesTimesAndModeAreTheFiles)
{
    const TempHome home;
    const std::string path = home.fileOfSize("file", 8192);
    TempHome::setTimes(path, TimePoint(5s), TimePoint(-7s));
    TempHome::setMode(path, 0640);
    const FileStatus status = statusOf(path).value();
    EXPECT_EQ(status.type, FileType::regular);
    EXPECT_EQ(status.length, 8192);
    EXPECT_EQ(status.accessed, TimePoint(5s));
    EXPECT_EQ(status.modified, TimePoint(-7s));
    EXPECT_EQ(status.mode, 0640U);
    EXPECT_EQ(status.owner, ::geteuid());
}

TEST(FileStatusTest, holesOccupyNothing)
{
    const TempHome home;
    const std::string path = home.file("sparse", "");
    std::filesystem::resize_file(path, 10'000'000);
    EXPECT_EQ(statusOf(path).value().length, 10'000'000);
    EXPECT_LT(statusOf(path).value().allocatedBytes, 1'000'000);
}

TEST(FileStatusTest, hardLinksShareTheirIdentity)
{
    const TempHome home;
    const std::string path = home.file("a");
    std::filesystem::create_hard_link(path, home.path("b"));
    EXPECT_EQ(statusOf(path).value().identity, statusOf(home.path("b")).value().identity);
    EXPECT_EQ(statusOf(path).value().links, 2U);
    EXPECT_NE(statusOf(path).value().identity, statusOf(home.file("c")).value().identity);
}

TEST(FileStatusTest, pipesAreOther)
{
    const TempHome home;
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(statusOf(home.path("pipe")).value().type, FileType::other);
}

TEST(FileStatusTest, deletableDependsOnTheParent)
{
    const TempHome home;
    const std::string file = home.file("folder/file");
    EXPECT_TRUE(isDeletable(file));
    EXPECT_FALSE(isDeletable(home.path("folder/missing")));
    EXPECT_TRUE(isDeletable(home.link("folder/dangling", "nowhere")));
    for (const unsigned mode : {0500U, 0600U, 0400U}) {
        TempHome::setMode(home.path("folder"), mode);
        EXPECT_FALSE(isDeletable(file)) << mode;
    }
    TempHome::setMode(home.path("folder"), 0300);
    EXPECT_TRUE(isDeletable(file)) << "listing the parent is not needed";
}

TEST(FileStatusTest, readOnlyFileIsDeletableAndReadOnlyFolderIsNot)
{
    const TempHome home;
    const std::string file = home.file("file");
    TempHome::setMode(file, 0400);
    EXPECT_TRUE(isDeletable(file));
    EXPECT_FALSE(isWritable(file));
    const std::string folder = home.folder("folder");
    TempHome::setMode(folder, 0555);
    EXPECT_FALSE(isDeletable(folder)) << "moving it would have to rewrite its parent entry";
    EXPECT_TRUE(isDeletable(home.link("link", folder))) << "the link itself moves";
}

TEST(FileStatusTest, stickyParentGuardsOtherPeoplesEntries)
{
    if (::geteuid() != 0)
        GTEST_SKIP() << "only root can make other people's files";
    const TempHome home;
    constexpr unsigned kOther = 12'345;
    const std::string theirs = home.file("shared/theirs");
    const std::string mine = home.file("shared/mine");
    ASSERT_EQ(::chown(theirs.c_str(), kOther, kOther), 0);
    TempHome::setMode(home.path("shared"), 01777);
    EXPECT_TRUE(isDeletable(theirs)) << "the folder is mine";
    ASSERT_EQ(::chown(home.path("shared").c_str(), kOther, kOther), 0);
    EXPECT_FALSE(isDeletable(theirs));
    EXPECT_TRUE(isDeletable(mine));
    ASSERT_EQ(::chown(home.path("shared").c_str(), ::geteuid(), ::getegid()), 0);
}

TEST(FileStatusTest, mountPointIsNotDeletable)
{
    EXPECT_FALSE(isDeletable("/proc"));
    EXPECT_FALSE(isDeletable("/"));
}

} // namespace
} // namespace orlen

#include "platform/files/OwnFile.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Folder.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <csignal>
#include <functional>
#include <string_view>
#include <sys/resource.h>
#include <thread>
#include <unistd.h>

namespace orlen {
namespace {

/// One and the same piece, so many times.
std::function<std::string_view()> pieces(std::string_view piece, int count)
{
    return [piece, count]() mutable { return count-- > 0 ? piece : std::string_view(); };
}

/// While it lives, no file can grow larger: as on a full disk, a write fails half way.
class FullDisk {
public:
    explicit FullDisk(rlim_t mostBytes) : m_handler(std::signal(SIGXFSZ, SIG_IGN))
    {
        ::getrlimit(RLIMIT_FSIZE, &m_before);
        const rlimit limit{.rlim_cur = mostBytes, .rlim_max = m_before.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &limit);
    }
    ~FullDisk()
    {
        ::setrlimit(RLIMIT_FSIZE, &m_before);
        std::signal(SIGXFSZ, m_handler);
    }
    FullDisk(const FullDisk&) = delete;
    FullDisk& operator=(const FullDisk&) = delete;

private:
    void (*m_handler)(int);
    rlimit m_before{};
};

TEST(OwnFileTest, replacingLeavesOnlyTheNewFile)
{
    const TempHome home;
    const std::string path = home.file("data/file", "old");
    EXPECT_TRUE(OwnFile::replace(path, "new").ok());
    EXPECT_EQ(TempHome::content(path), "new");
    EXPECT_TRUE(OwnFile::replace(home.path("data/fresh"), "").ok());
    EXPECT_THAT(listNames(home.path("data")), testing::UnorderedElementsAre("file", "fresh"));
}

TEST(OwnFileTest, failedReplacementLeavesTheOldFile)
{
    const TempHome home;
    const std::string path = home.file("data/file", "old");
    TempHome::setMode(home.path("data"), 0500);
    EXPECT_EQ(OwnFile::replace(path, "new").error(), EACCES);
    EXPECT_EQ(TempHome::content(path), "old");
    EXPECT_EQ(OwnFile::replace(home.path("missing/file"), "new").error(), ENOENT);

    home.file("target/inside");
    EXPECT_FALSE(OwnFile::replace(home.path("target"), "new").ok()) << "a folder is not replaced";
    EXPECT_THAT(listNames(home.path()), testing::UnorderedElementsAre("data", "target"));
}

TEST(OwnFileTest, replacedLinkDoesNotTouchItsTarget)
{
    const TempHome home;
    const std::string target = home.file("target", "old");
    const std::string link = home.link("link", target);
    EXPECT_TRUE(OwnFile::replace(link, "new").ok());
    EXPECT_EQ(TempHome::content(target), "old");
    EXPECT_EQ(TempHome::content(link), "new");
}

TEST(OwnFileTest, piecesBecomeOneFile)
{
    const TempHome home;
    const std::string path = home.file("file", "old");
    TempHome::setMode(path, 0644);
    const std::string piece(100'000, 'p');
    EXPECT_TRUE(OwnFile::replaceByPieces(path, pieces(piece, 30)).ok());
    EXPECT_EQ(TempHome::content(path), std::string(3'000'000, 'p'));
    EXPECT_EQ(statusOf(path).value().mode, 0600U);
    EXPECT_TRUE(OwnFile::replaceByPieces(path, pieces(piece, 0)).ok());
    EXPECT_EQ(TempHome::content(path), "");
    EXPECT_THAT(listNames(home.path()), testing::ElementsAre("file"));
}

TEST(OwnFileTest, aFullDiskLeavesTheOldFile)
{
    const TempHome home;
    const std::string path = home.file("file", "old");
    const std::string piece(100'000, 'p');
    for (const rlim_t most : {rlim_t{0}, rlim_t{1}, rlim_t{250'000}, rlim_t{2'999'999}}) {
        const FullDisk full(most);
        EXPECT_EQ(OwnFile::replaceByPieces(path, pieces(piece, 30)).error(), EFBIG) << most;
    }
    EXPECT_EQ(TempHome::content(path), "old");
    EXPECT_THAT(listNames(home.path()), testing::ElementsAre("file")) << "nothing unfinished stays";
}

TEST(OwnFileTest, piecesGoThroughNoLink)
{
    const TempHome home;
    const std::string target = home.file("target", "old");
    const std::string link = home.link("link", target);
    // Wherever the next unfinished file may be, someone was there first.
    for (int number = 1; number < 500; ++number)
        home.link("link.new-" + std::to_string(::getpid()) + "-" + std::to_string(number), target);
    EXPECT_TRUE(OwnFile::replaceByPieces(link, pieces("new", 1)).ok());
    EXPECT_EQ(TempHome::content(target), "old");
    EXPECT_EQ(statusOf(link).value().type, FileType::regular);
    EXPECT_EQ(TempHome::content(link), "new");
}

TEST(OwnFileTest, aNewFileNeverTakesAName)
{
    const TempHome home;
    const std::string path = home.path("file");
    EXPECT_TRUE(OwnFile::writeNew(path, "first", 0644).ok());
    EXPECT_EQ(OwnFile::writeNew(path, "second").error(), EEXIST);
    EXPECT_EQ(TempHome::content(path), "first");
    const std::string link = home.link("link", home.path("missing"));
    EXPECT_EQ(OwnFile::writeNew(link, "second").error(), EEXIST);
    EXPECT_FALSE(TempHome::exists(home.path("missing")));
    EXPECT_EQ(statusOf(path).value().mode, 0644U);
    EXPECT_TRUE(OwnFile::replace(path, "third", 0440).ok());
    EXPECT_EQ(statusOf(path).value().mode, 0440U);

    EXPECT_TRUE(OwnFile::remove(path).ok());
    EXPECT_EQ(OwnFile::remove(path).error(), ENOENT);
    EXPECT_FALSE(OwnFile::remove(home.folder("folder")).ok());
    EXPECT_THAT(listNames(home.path()), testing::UnorderedElementsAre("folder", "link"));
}

TEST(OwnFileTest, readersNeverSeeHalfAFile)
{
    const TempHome home;
    const std::string first(300'000, 'a');
    const std::string second(200'000, 'b');
    const std::string path = home.file("file", first);
    const auto write = [&](const std::string& content) {
        for (int i = 0; i < 20; ++i)
            EXPECT_TRUE(OwnFile::replace(path, content).ok());
    };
    std::jthread one(write, first);
    std::jthread two(write, second);
    for (int i = 0; i < 40; ++i) {
        const auto seen = readSmallFile(path, 1'000'000);
        EXPECT_TRUE(seen == first || seen == second);
    }
    one.join();
    two.join();
    EXPECT_THAT(listNames(home.path()), testing::ElementsAre("file"));
}

TEST(OwnFileTest, renamingWorksInAFolderReachedThroughALink)
{
    const TempHome home;
    home.file("data/a", "a");
    home.file("data/b", "b");
    const std::string path = home.link("link", home.path("data")) + "/a";
    EXPECT_EQ(OwnFile::rename(path, "b").error(), EEXIST);
    EXPECT_EQ(TempHome::content(home.path("data/b")), "b");
    EXPECT_TRUE(OwnFile::renameOver(path, "b").ok());
    EXPECT_EQ(TempHome::content(home.path("data/b")), "a");
    EXPECT_TRUE(OwnFile::rename(home.path("link/b"), "c").ok());
    EXPECT_THAT(listNames(home.path("data")), testing::ElementsAre("c"));
}

} // namespace
} // namespace orlen

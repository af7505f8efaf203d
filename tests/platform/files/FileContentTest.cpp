#include "platform/files/FileContent.h"

#include "platform/files/Folder.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>

namespace orlen {
namespace {

using namespace std::chrono_literals;

TEST(FileContentTest, smallFileIsReadUpToItsLimit)
{
    const TempHome home;
    const std::string path = home.file("file", "12345");
    EXPECT_EQ(readSmallFile(path, 6), "12345");
    EXPECT_EQ(readSmallFile(path, 5), "12345");
    EXPECT_EQ(readSmallFile(path, 4), std::nullopt);
    EXPECT_EQ(readSmallFile(home.file("empty", ""), 4), "");
    EXPECT_EQ(readSmallFile(home.path("missing"), 4), std::nullopt);
}

TEST(FileContentTest, fileLongerThanOneReadIsWhole)
{
    const TempHome home;
    const std::string path = home.fileOfSize("file", 200 * 4096L);
    EXPECT_EQ(readSmallFile(path, 1'000'000), TempHome::content(path));
}

TEST(FileContentTest, headIsCut)
{
    const TempHome home;
    home.file("folder/file", "12345");
    const auto folder = openFolder(home.path("folder"));
    ASSERT_TRUE(folder.ok());
    EXPECT_EQ(readHeadAt(folder.value().get(), "file", 3), "123");
    EXPECT_EQ(readHeadAt(folder.value().get(), "file", 9), "12345");
    EXPECT_EQ(readHeadAt(folder.value().get(), "other", 3), std::nullopt);
}

TEST(FileContentTest, onlyRegularFilesAreOpened)
{
    const TempHome home;
    // A pipe without a writer would make a reader wait for ever.
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(openFile(home.path("pipe")).error(), EINVAL);
    EXPECT_EQ(openFile(home.folder("folder")).error(), EINVAL);
    EXPECT_EQ(openFile(home.link("link", home.file("file"))).error(), EINVAL);
    EXPECT_EQ(openFile("/dev/zero").error(), EINVAL);
    EXPECT_EQ(openFile(home.path("missing")).error(), ENOENT);
    TempHome::setMode(home.path("file"), 0200);
    EXPECT_EQ(openFile(home.path("file")).error(), EACCES);
}

TEST(FileContentTest, readingLeavesTheAccessTime)
{
    const TempHome home;
    const std::string path = home.file("file", "12345");
    TempHome::setTimes(path, TimePoint(5s), TimePoint(9s));
    EXPECT_EQ(readSmallFile(path, 10), "12345");
    EXPECT_EQ(statusOf(path).value().accessed, TimePoint(5s));
}

TEST(FileContentTest, partsAreReadAtTheirPlace)
{
    const TempHome home;
    const auto file = openFile(home.file("file", "0123456789"));
    ASSERT_TRUE(file.ok());
    std::array<std::byte, 4> buffer{};
    EXPECT_EQ(readAt(file.value().get(), 2, buffer).value(), 4U);
    EXPECT_EQ(buffer.front(), std::byte{'2'});
    EXPECT_EQ(readAt(file.value().get(), 8, buffer).value(), 2U);
    EXPECT_EQ(readAt(file.value().get(), 10, buffer).value(), 0U);
    EXPECT_EQ(readAt(-1, 0, buffer).error(), EBADF);
}

TEST(FileContentTest, holesAreToldFromData)
{
    const TempHome home;
    constexpr std::int64_t kFar = 1'048'576;
    const std::string path = home.file("sparse", std::string(4096, 'x'));
    std::filesystem::resize_file(path, kFar);
    std::ofstream(path, std::ios::app) << std::string(4096, 'y');
    std::filesystem::resize_file(path, 4 * kFar);
    const auto file = openFile(path);
    const auto at = [&](std::int64_t offset) {
        return nextData(file.value().get(), offset, 4 * kFar).value();
    };
    EXPECT_EQ(at(0), (FileRange{0, 4096}));
    EXPECT_EQ(at(4096), (FileRange{kFar, kFar + 4096}));
    EXPECT_EQ(at(kFar + 100), (FileRange{kFar + 100, kFar + 4096}));
    EXPECT_EQ(at(kFar + 4096), std::nullopt);
    EXPECT_EQ(at(4 * kFar), std::nullopt);
    EXPECT_EQ(nextData(file.value().get(), 0, 100).value(), (FileRange{0, 100}));
    EXPECT_FALSE(nextData(-1, 0, 1).ok());
}

} // namespace
} // namespace orlen

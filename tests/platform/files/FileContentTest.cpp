#include "platform/files/FileContent.h"

#include "platform/files/Folder.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <chrono>
#include <filesystem>
#include <fstream>
#include <sys/stat.h>
#include <thread>

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

TEST(FileContentTest, replacingLeavesOnlyTheNewFile)
{
    const TempHome home;
    const std::string path = home.file("data/file", "old");
    EXPECT_TRUE(replaceFile(path, "new").ok());
    EXPECT_EQ(TempHome::content(path), "new");
    EXPECT_TRUE(replaceFile(home.path("data/fresh"), "").ok());
    EXPECT_THAT(listNames(home.path("data")), testing::UnorderedElementsAre("file", "fresh"));
}

TEST(FileContentTest, failedReplacementLeavesTheOldFile)
{
    const TempHome home;
    const std::string path = home.file("data/file", "old");
    TempHome::setMode(home.path("data"), 0500);
    EXPECT_EQ(replaceFile(path, "new").error(), EACCES);
    EXPECT_EQ(TempHome::content(path), "old");
    EXPECT_EQ(replaceFile(home.path("missing/file"), "new").error(), ENOENT);

    home.file("target/inside");
    EXPECT_FALSE(replaceFile(home.path("target"), "new").ok()) << "a folder is not replaced";
    EXPECT_THAT(listNames(home.path()), testing::UnorderedElementsAre("data", "target"));
}

TEST(FileContentTest, replacedLinkDoesNotTouchItsTarget)
{
    const TempHome home;
    const std::string target = home.file("target", "old");
    const std::string link = home.link("link", target);
    EXPECT_TRUE(replaceFile(link, "new").ok());
    EXPECT_EQ(TempHome::content(target), "old");
    EXPECT_EQ(TempHome::content(link), "new");
}

TEST(FileContentTest, aNewFileNeverTakesAName)
{
    const TempHome home;
    const std::string path = home.path("file");
    EXPECT_TRUE(writeNewFile(path, "first", 0644).ok());
    EXPECT_EQ(writeNewFile(path, "second").error(), EEXIST);
    EXPECT_EQ(TempHome::content(path), "first");
    const std::string link = home.link("link", home.path("missing"));
    EXPECT_EQ(writeNewFile(link, "second").error(), EEXIST);
    EXPECT_FALSE(TempHome::exists(home.path("missing")));
    EXPECT_EQ(statusOf(path).value().mode, 0644U);
    EXPECT_TRUE(replaceFile(path, "third", 0440).ok());
    EXPECT_EQ(statusOf(path).value().mode, 0440U);

    EXPECT_TRUE(removeOwnFile(path).ok());
    EXPECT_EQ(removeOwnFile(path).error(), ENOENT);
    EXPECT_FALSE(removeOwnFile(home.folder("folder")).ok());
    EXPECT_THAT(listNames(home.path()), testing::UnorderedElementsAre("folder", "link"));
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

TEST(FileContentTest, readersNeverSeeHalfAFile)
{
    const TempHome home;
    const std::string first(300'000, 'a');
    const std::string second(200'000, 'b');
    const std::string path = home.file("file", first);
    const auto write = [&](const std::string& content) {
        for (int i = 0; i < 20; ++i)
            EXPECT_TRUE(replaceFile(path, content).ok());
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

} // namespace
} // namespace orlen

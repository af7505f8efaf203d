#include "scan/HomeFiles.h"

#include "scan/FS.h"
#include "scan/HomeWalk.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <stop_token>
#include <unistd.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

HomeFiles walked(HomeWalk::Limits limits = {})
{
    return *HomeWalk::walk({}, limits);
}

std::vector<std::string> pathsOf(const HomeFiles& files, const TempHome& home)
{
    std::vector<std::string> paths;
    for (HomeFiles::Number i = 0; i < files.fileCount(); ++i)
        paths.push_back(files.filePath(i).substr(home.path().size() + 1));
    return paths;
}

/// Each folder holds what measuring it by itself finds.
void expectMeasuredSums(const HomeFiles& files)
{
    for (HomeFiles::Number i = 0; i < files.folderCount(); ++i) {
        const std::string path = files.folderPath(i);
        EXPECT_EQ(files.folder(i).bytes, FS::allocatedSize(path, {})) << path;
        EXPECT_EQ(files.folderAt(path), i) << path;
    }
}

HomeFiles::Folder folder(const HomeFiles& files, const std::string& path)
{
    return files.folder(files.folderAt(path).value());
}

TEST(HomeFilesTest, foldersAndFilesAreInOrderWithTheirSums)
{
    const TempHome home;
    home.fileOfSize("Music/b/one.flac", 8'192);
    home.fileOfSize("Music/a.mp3", 4'096);
    home.fileOfSize("Music/a/two.flac", 12'288);
    home.fileOfSize(".cache/app/x", 16'384);
    home.fileOfSize("disk.img", 20'480);
    home.folder("empty");
    home.link("Music/link", home.path(".cache"));
    const HomeFiles files = walked();

    expectMeasuredSums(files);
    EXPECT_THAT(pathsOf(files, home), ElementsAre("disk.img", ".cache/app/x", "Music/a.mp3",
                                                  "Music/a/two.flac", "Music/b/one.flac"));
    const HomeFiles::Number music = files.folderAt(home.path("Music")).value();
    EXPECT_EQ(files.folder(music).files, 3U);
    EXPECT_EQ(files.filesBelow(music).last - files.filesBelow(music).first, 3U);
    EXPECT_EQ(files.filesIn(music).last - files.filesIn(music).first, 1U);
    EXPECT_TRUE(files.folder(music).isOwn);
    EXPECT_FALSE(folder(files, home.path(".cache/app")).isOwn);
    EXPECT_FALSE(files.folderAt(home.path("Music/link")));
    EXPECT_FALSE(files.folderAt("/"));
    EXPECT_TRUE(files.isComplete());
}

TEST(HomeFilesTest, aFileWithSeveralNamesCountsOnceForEveryFolderAroundOne)
{
    const TempHome home;
    const std::string kept = home.fileOfSize("zoo/kept", 40'960);
    home.fileOfSize("zoo/other", 4'096);
    home.folder(".store/deep");
    home.folder("zoo/sub");
    for (const char* name : {".store/deep/kept", "zoo/sub/kept", "zoo/again"})
        ASSERT_EQ(::link(kept.c_str(), home.path(name).c_str()), 0);
    const HomeFiles files = walked();

    expectMeasuredSums(files);
    EXPECT_EQ(files.folder(0).bytes, 45'056);
    EXPECT_EQ(files.folder(0).files, 2U);
    std::vector<std::string> counted;
    for (HomeFiles::Number i = 0; i < files.fileCount(); ++i) {
        if (files.file(i).counted == i)
            counted.push_back(files.filePath(i));
    }
    // One of the person's own names, though the hidden one comes first.
    EXPECT_THAT(counted, ElementsAre(home.path("zoo/again"), home.path("zoo/other")));
}

TEST(HomeFilesTest, ofTooManyFilesTheSmallestOfHiddenFoldersLeaveFirst)
{
    const TempHome home;
    home.fileOfSize(".cache/small", 4'096);
    home.fileOfSize(".cache/large", 40'960);
    home.fileOfSize("site/node_modules/module", 8'192);
    for (const char* name : {"a", "b", "c"})
        home.fileOfSize(name, 4'096);
    const HomeFiles files = walked({.files = 4});

    EXPECT_FALSE(files.isComplete());
    EXPECT_THAT(pathsOf(files, home), UnorderedElementsAre(".cache/large", "a", "b", "c"));
    expectMeasuredSums(files);
    EXPECT_EQ(folder(files, home.path(".cache")).files, 2U);
}

TEST(HomeFilesTest, whatTooManyFoldersHoldCountsForTheOneAround)
{
    const TempHome home;
    home.fileOfSize("a/b/c/file", 8'192);
    const HomeFiles files = walked({.folders = 2});

    EXPECT_FALSE(files.isComplete());
    EXPECT_EQ(files.folderCount(), 2U);
    EXPECT_EQ(files.folder(1).bytes, 8'192);
    EXPECT_THAT(pathsOf(files, home), IsEmpty());
}

TEST(HomeFilesTest, namesThatAreNotTextAreCountedOnly)
{
    const TempHome home;
    home.fileOfSize("odd/bad\xFFname", 4'096);
    home.fileOfSize("odd/bad\xFF"
                    "folder/file",
                    8'192);
    const HomeFiles files = walked();

    EXPECT_THAT(pathsOf(files, home), IsEmpty());
    EXPECT_EQ(folder(files, home.path("odd")).bytes, 12'288);
    EXPECT_EQ(folder(files, home.path("odd")).files, 2U);
}

TEST(HomeFilesTest, aStoppedWalkGivesNothing)
{
    const TempHome home;
    std::stop_source stop;
    stop.request_stop();
    EXPECT_EQ(HomeWalk::walk(stop.get_token()), nullptr);
}

} // namespace
} // namespace orlen

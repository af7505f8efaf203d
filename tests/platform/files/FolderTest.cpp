#include "platform/files/Folder.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cerrno>
#include <map>
#include <sys/stat.h>

namespace orlen {
namespace {

using testing::IsEmpty;
using testing::UnorderedElementsAre;

TEST(FolderTest, oddNamesAreListedAsBytes)
{
    const TempHome home;
    const std::string longest(255, 'n');
    for (const std::string& name :
         {std::string("new\nline"), std::string("b\xFFytes"), std::string("..."), longest})
        home.file("folder/" + name);
    EXPECT_THAT(listNames(home.path("folder")),
                UnorderedElementsAre("new\nline", "b\xFFytes", "...", longest));
    EXPECT_THAT(listNames(home.folder("empty")), IsEmpty());
    EXPECT_THAT(listNames(home.path("missing")), IsEmpty());
}

TEST(FolderTest, listingOfSeveralChunksIsWhole)
{
    const TempHome home;
    constexpr std::size_t kCount = 700;
    for (std::size_t i = 0; i < kCount; ++i)
        home.file("many/" + std::string(100, 'x') + std::to_string(i), "");
    auto names = listNames(home.path("many"));
    std::sort(names.begin(), names.end());
    EXPECT_EQ(std::unique(names.begin(), names.end()) - names.begin(), kCount);
}

TEST(FolderTest, listingTellsTheTypes)
{
    const TempHome home;
    home.file("f/file");
    home.folder("f/folder");
    home.link("f/link", "folder");
    ASSERT_EQ(::mkfifo(home.path("f/pipe").c_str(), 0600), 0);
    const auto folder = openFolder(home.path("f"));
    ASSERT_TRUE(folder.ok());
    std::map<std::string, EntryType> types;
    FolderReader reader(folder.value().get());
    while (const auto chunk = reader.next())
        chunk->forEach([&](const FolderEntry& entry) { types[entry.name] = entry.type; });
    ASSERT_EQ(types.size(), 4U);
    if (types["file"] == EntryType::unknown)
        GTEST_SKIP() << "this file system does not tell types";
    EXPECT_EQ(types["file"], EntryType::regular);
    EXPECT_EQ(types["folder"], EntryType::folder);
    EXPECT_EQ(types["link"], EntryType::link);
    EXPECT_EQ(types["pipe"], EntryType::other);
}

TEST(FolderTest, linkIsNotFollowed)
{
    const TempHome home;
    home.file("folder/inner/a");
    const std::string link = home.link("link", home.path("folder"));
    EXPECT_FALSE(openFolder(link).ok());
    EXPECT_THAT(listNames(link), IsEmpty());
    EXPECT_FALSE(isListable(link));
    const auto parent = openFolder(home.path("folder"));
    ASSERT_TRUE(parent.ok());
    EXPECT_TRUE(openFolderAt(parent.value().get(), "inner").ok());
    home.link("folder/inner-link", "inner");
    EXPECT_FALSE(openFolderAt(parent.value().get(), "inner-link").ok());
}

TEST(FolderTest, pipesAndFilesAreNoFolders)
{
    const TempHome home;
    ASSERT_EQ(::mkfifo(home.path("pipe").c_str(), 0600), 0);
    EXPECT_EQ(openFolder(home.path("pipe")).error(), ENOTDIR);
    EXPECT_EQ(openFolder(home.file("file")).error(), ENOTDIR);
}

TEST(FolderTest, deniedFolderIsNotListable)
{
    const TempHome home;
    home.file("folder/a");
    EXPECT_TRUE(isListable(home.path("folder")));
    TempHome::setMode(home.path("folder"), 0300);
    EXPECT_FALSE(isListable(home.path("folder")));
    EXPECT_EQ(openFolder(home.path("folder")).error(), EACCES);
}

TEST(FolderTest, missingParentsAreMade)
{
    const TempHome home;
    EXPECT_TRUE(makeFolders(home.path("a/b/../c"), 0700).ok());
    struct stat status {};
    ASSERT_EQ(::stat(home.path("a/c").c_str(), &status), 0);
    EXPECT_EQ(status.st_mode & 0777U, 0700U);
    EXPECT_FALSE(TempHome::exists(home.path("a/b")));
    EXPECT_TRUE(makeFolders(home.path("a/c"), 0700).ok()) << "it exists already";
    home.link("link", "a");
    EXPECT_TRUE(makeFolders(home.path("link/d"), 0700).ok());
    EXPECT_TRUE(TempHome::exists(home.path("a/d")));
}

TEST(FolderTest, foldersAreNotMadeThroughFilesOrAgainstPermissions)
{
    const TempHome home;
    home.file("file");
    EXPECT_EQ(makeFolders(home.path("file"), 0700).error(), ENOTDIR);
    EXPECT_EQ(makeFolders(home.path("file/below"), 0700).error(), ENOTDIR);
    home.link("dangling", "nowhere");
    EXPECT_FALSE(makeFolders(home.path("dangling/below"), 0700).ok());
    TempHome::setMode(home.folder("closed"), 0500);
    EXPECT_EQ(makeFolders(home.path("closed/below"), 0700).error(), EACCES);
    EXPECT_FALSE(makeFolders("", 0700).ok());
}

TEST(FolderTest, resolvedFollowsEveryLink)
{
    const TempHome home;
    home.file("real/a");
    home.link("one", "real");
    home.link("two", "one");
    EXPECT_EQ(resolved(home.path("two/a")), home.path("real/a"));
    EXPECT_EQ(resolved(home.path("two/missing")), "");
    home.link("loop", "loop");
    EXPECT_EQ(resolved(home.path("loop")), "");
}

} // namespace
} // namespace orlen

#include "scan/StorageBreakdown.h"

#include "platform/files/Volume.h"
#include "scan/SystemFolders.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <numeric>
#include <unistd.h>

namespace orlen {
namespace {

using enum OrlenCategory;

TEST(StorageBreakdownTest, everyFolderCountsInItsOwnCategoryOnce)
{
    const TempHome home;
    const std::int64_t block = 4096;
    home.fileOfSize(home.outside("Applications/x"), block);
    home.fileOfSize("Applications/x", block);
    home.fileOfSize(home.outside("system/opt/x"), block);
    home.fileOfSize(".var/app/org.a.App/data/x", block);
    home.fileOfSize(".var/app/org.a.App/cache/x", 10 * block); // caches, although below apps
    home.fileOfSize("Pictures/x", 2 * block);
    home.fileOfSize("Videos/x", 3 * block);
    home.fileOfSize("Documents/x", 4 * block);
    home.fileOfSize("Documents/Downloads/x", 5 * block); // a Downloads folder inside Documents
    home.fileOfSize(".cargo/x", 6 * block);
    home.fileOfSize(".cache/x", 20 * block);
    home.fileOfSize("elsewhere/x", 100 * block);
    home.link("Music", home.path("Videos")); // the same folder again
    home.file(".config/user-dirs.dirs", "XDG_DOWNLOAD_DIR=\"$HOME/Documents/Downloads\"\n"
                                        "XDG_PICTURES_DIR=\"$HOME/Documents\"\n");
    TempHome::reloadPlaces();

    const StorageBreakdown breakdown = StorageBreakdown::compute();
    ASSERT_EQ(breakdown.cats.size(), kAllCategories.size());
    EXPECT_EQ(breakdown.cats.at(apps), 4 * block);
    EXPECT_EQ(breakdown.cats.at(photos), 6 * block)
        << "Documents, listed for photos first, without Downloads";
    EXPECT_EQ(breakdown.cats.at(media), 3 * block);
    EXPECT_EQ(breakdown.cats.at(documents), 5 * block);
    EXPECT_EQ(breakdown.cats.at(developer), 6 * block);
    EXPECT_EQ(breakdown.cats.at(caches), 30 * block);
    std::int64_t sum = 0;
    for (const auto& [category, bytes] : breakdown.cats)
        sum += bytes;
    EXPECT_EQ(sum, breakdown.total - breakdown.free) << "the categories add up to the used space";
}

TEST(StorageBreakdownTest, foldersAreKeptWithTheirLargestItems)
{
    const TempHome home;
    const std::int64_t block = 4096;
    home.fileOfSize("Videos/film.mkv", 9 * block);
    home.fileOfSize("Videos/series/one/a", 4 * block);
    home.fileOfSize("Videos/series/two/b", 3 * block);
    home.fileOfSize("Videos/bad\xff/c", 2 * block);
    for (const char* name : {"e", "f", "g", "h"})
        home.fileOfSize("Videos/" + std::string(name), block);
    home.folder("Music");
    home.fileOfSize(".var/app/org.a.App/data/x", block);
    home.fileOfSize(".var/app/org.a.App/cache/x", 30 * block);

    const std::vector<CategoryFolder> folders = StorageBreakdown::compute().folders;
    ASSERT_EQ(folders.size(), 3U) << "largest first, without the empty one";
    EXPECT_EQ(folders[0].path, home.path(".var/app/org.a.App/cache"));
    EXPECT_EQ(folders[2].bytes, block) << "without the cache in it";
    const CategoryFolder videos{media,
                                home.path("Videos"),
                                22 * block,
                                {{"film.mkv", 9 * block, false},
                                 {"series", 7 * block},
                                 {"e", block, false},
                                 {"f", block, false},
                                 {"g", block, false}},
                                true};
    EXPECT_EQ(folders[1], videos);
}

TEST(StorageBreakdownTest, systemConsistsOfWhatIsLeft)
{
    const TempHome home;
    const std::int64_t block = 4096;
    home.fileOfSize("Videos/film.mkv", 9 * block);
    home.fileOfSize("projects/a", 5 * block);
    home.fileOfSize(".local/share/Trash/files/b", 4 * block);
    home.fileOfSize(home.outside("system/opt/app"), block); // an application
    home.fileOfSize(home.outside("system/usr/lib/c"), 3 * block);
    home.fileOfSize(home.outside("system/swapfile"), 2 * block);
    home.fileOfSize(home.outside("system/var/locked/d"), block);
    home.fileOfSize(home.outside("system/var/e"), block);
    TempHome::setMode(home.outside("system/var/locked"), 0);

    const std::vector<CategoryFolder> folders = SystemFolders::measure();
    ASSERT_EQ(folders.size(), 5U);
    const auto is = [&](std::size_t at, const std::string& path, std::int64_t bytes) {
        EXPECT_EQ(folders[at].path, path);
        EXPECT_EQ(folders[at].bytes, bytes);
    };
    is(0, home.path(), 5 * block);
    is(1, home.path(".local/share/Trash"), 4 * block);
    is(2, home.outside("system/usr"), 3 * block);
    is(3, home.outside("system"), 2 * block);
    EXPECT_EQ(folders[3].largest, (std::vector<CategoryFolder::Item>{{"swapfile", 2 * block, false}}));
    is(4, home.outside("system/var"), block);
    EXPECT_FALSE(folders[4].isComplete);
    EXPECT_TRUE(folders[2].isComplete);
}

TEST(StorageBreakdownTest, fileWithSeveralNamesCountsOncePerCategory)
{
    const TempHome home;
    const std::string path = home.fileOfSize(".cargo/a", 8192);
    ASSERT_EQ(::link(path.c_str(), home.path(".cargo/b").c_str()), 0);
    home.folder("go");
    ASSERT_EQ(::link(path.c_str(), home.path("go/c").c_str()), 0);
    home.folder("Documents");
    ASSERT_EQ(::link(path.c_str(), home.path("Documents/d").c_str()), 0);
    const StorageBreakdown breakdown = StorageBreakdown::compute();
    EXPECT_EQ(breakdown.cats.at(developer), 8192);
    EXPECT_EQ(breakdown.cats.at(documents), 8192);
}

TEST(StorageBreakdownTest, emptyHomeHasAllCategoriesAndUnusableHomeIsNotMeasured)
{
    const TempHome home;
    EXPECT_EQ(StorageBreakdown::compute().cats.at(photos), 0);
    home.fileOfSize("Pictures/x", 4096);
    TempHome::reloadPlaces([](Places& places) { places.isHomeUsable = false; });
    EXPECT_EQ(StorageBreakdown::compute().cats.at(photos), 0);
}

TEST(StorageBreakdownTest, folderOnAnotherFileSystemIsNotCounted)
{
    const TempHome home;
    home.fileOfSize("Pictures/x", 4096);
    home.fileOfSize("Music/x", 4096);
    const std::string table =
        home.file(home.outside("mountinfo"),
                  "1 0 0:1 / / rw - btrfs /dev/a rw\n2 1 0:2 / " + home.path("Pictures") +
                      " rw - ext4 /dev/b rw\n3 1 0:3 /sub " + home.path("Music") + " rw - btrfs /dev/a rw\n");
    TempHome::reloadPlaces([&](Places& places) { places.mountTable = table; });
    const StorageBreakdown breakdown = StorageBreakdown::compute();
    EXPECT_EQ(breakdown.cats.at(photos), 0);
    EXPECT_EQ(breakdown.cats.at(media), 4096) << "a subvolume of the same file system";
}

} // namespace
} // namespace orlen

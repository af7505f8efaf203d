#include "tools/MapPlaces.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {

TEST(MapPlacesTest, theHomeFolderComesBeforeTheFoldersOfTheBookmarks)
{
    const TempHome home;
    home.folder("Big files");
    home.file("note", "x");
    home.file(".config/gtk-3.0/bookmarks", "file://" + home.path("Big%20files") +
                                               " Big\nsftp://server/folder\nfile://" + home.path("note") +
                                               "\nfile://" + home.path("gone") + "\nfile://" + home.path() +
                                               "/\nnonsense");
    const std::vector<std::string> folders = MapPlaces::folders();
    EXPECT_EQ(folders.front(), home.path());
    EXPECT_EQ(folders.back(), home.path("Big files"));
    EXPECT_EQ(std::ranges::count(folders, home.path()), 1);
    EXPECT_THAT(folders, testing::Not(testing::Contains(home.path("note"))));
    EXPECT_THAT(folders, testing::Not(testing::Contains(home.path("gone"))));
}

} // namespace orlen

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
    home.folder("Shown");
    home.folder("Hidden");
    home.file(".local/share/user-places.xbel",
              R"(<?xml version="1.0"?><xbel><bookmark href="file://)" + home.path("Hidden") +
                  R"("><info><metadata owner="x"><IsHidden>true</IsHidden></metadata></info></bookmark>)" +
                  R"(<bookmark href="trash:/"/><bookmark href="file://)" + home.path("Shown") +
                  R"("/></xbel>)");
    const std::vector<std::string> folders = MapPlaces::folders();
    EXPECT_EQ(folders.front(), home.path());
    EXPECT_THAT(std::vector(folders.end() - 2, folders.end()),
                testing::ElementsAre(home.path("Big files"), home.path("Shown")));
    EXPECT_EQ(std::ranges::count(folders, home.path()), 1);
    EXPECT_THAT(folders, testing::Not(testing::Contains(home.path("note"))));
    EXPECT_THAT(folders, testing::Not(testing::Contains(home.path("gone"))));
}

} // namespace orlen

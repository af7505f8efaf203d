#include "app/DiskAccess.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

namespace orlen {

namespace {

bool isGranted()
{
    TempHome::reloadPlaces();
    return DiskAccess::isGranted(Places::current());
}

} // namespace

TEST(DiskAccessTest, aProtectedFolderDecidesWhenItExists)
{
    const TempHome home;
    EXPECT_TRUE(isGranted());
    home.folder("Library/Safari");
    EXPECT_TRUE(isGranted());
    TempHome::setMode(home.path("Library/Safari"), 0000);
    EXPECT_FALSE(isGranted());
}

TEST(DiskAccessTest, theUsersOwnFoldersDecideOtherwise)
{
    const TempHome home;
    home.folder(".config");
    EXPECT_TRUE(isGranted());
    TempHome::setMode(home.path(".config"), 0300);
    EXPECT_FALSE(isGranted());
}

TEST(DiskAccessTest, aSandboxDecidesByWhatItWasGiven)
{
    struct Case {
        const char* name;
        const char* description;
        bool isGranted;
    };
    constexpr Case cases[] = {
        {"home", "[Application]\nname=x\n[Context]\nshared=ipc\nfilesystems=xdg-run/dconf;home;\n", true},
        {"whole host", "[Context]\nfilesystems=host\n", true},
        {"home, read only", "[Context]\nfilesystems=home:ro;\n", false},
        {"a folder of it", "[Context]\nfilesystems=~/home;xdg-music\n", false},
        {"another section", "[Instance]\nfilesystems=home\n[Context]\n", false},
        {"nothing", "", false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        home.file(home.outside("system/.flatpak-info"), c.description);
        EXPECT_EQ(isGranted(), c.isGranted);
    }
}

TEST(DiskAccessTest, aSandboxTellsHowToLeaveIt)
{
    const TempHome home;
    TempHome::reloadPlaces();
    EXPECT_EQ(DiskAccess::grantingCommand(Places::current()), "");
    TempHome::setVariable("SNAP", "/snap/orlen/1");
    TempHome::setVariable("SNAP_NAME", "orlen");
    EXPECT_EQ(DiskAccess::grantingCommand(Places::current()), "snap connect orlen:home");
    home.file(home.outside("system/.flatpak-info"), "[Context]\n");
    TempHome::reloadPlaces();
    EXPECT_TRUE(DiskAccess::grantingCommand(Places::current()).starts_with("flatpak override --user"));
}

} // namespace orlen

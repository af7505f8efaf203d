#include "app/DiskAccess.h"

#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <functional>

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

TEST(DiskAccessTest, onlyWhatIsThereIsProbed)
{
    struct Case {
        const char* name;
        std::function<void(const TempHome&)> prepare;
        bool isGranted;
    };
    const Case cases[] = {
        {"a file where its folder would be", [](const TempHome& home) { home.file("Library"); }, true},
        {"a link to nothing", [](const TempHome& home) { home.link("Library/Safari", "gone"); }, true},
        {"a link into a file",
         [](const TempHome& home) { home.link("Library/Safari", home.file("f") + "/x"); }, true},
        {"a link to itself", [](const TempHome& home) { home.link("Library/Safari", "Safari"); }, true},
        {"a link to a folder", [](const TempHome& home) { home.link("Library/Safari", home.folder("d")); },
         true},
        {"a file", [](const TempHome& home) { home.file("Library/Safari"); }, false},
        {"a link to a file", [](const TempHome& home) { home.link("Library/Safari", home.file("f")); },
         false},
        {"a folder out of reach",
         [](const TempHome& home) { TempHome::setMode(home.folder("Library"), 0000); }, false},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        const TempHome home;
        c.prepare(home);
        EXPECT_EQ(isGranted(), c.isGranted);
    }
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

#include "platform/files/Places.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(PlacesTest, defaultsLieBelowTheHomeFolder)
{
    const TempHome home;
    const Places& places = Places::current();
    EXPECT_EQ(places.home, home.path());
    EXPECT_TRUE(places.isHomeUsable);
    EXPECT_THAT(places.caches, ElementsAre(home.path(".cache")));
    EXPECT_THAT(places.configs, ElementsAre(home.path(".config")));
    EXPECT_THAT(places.data, ElementsAre(home.path(".local/share")));
    EXPECT_THAT(places.states, ElementsAre(home.path(".local/state")));
}

TEST(PlacesTest, movedBaseFolderComesBeforeItsDefault)
{
    const TempHome home;
    TempHome::setVariable("XDG_CACHE_HOME", home.path("fast/./cache/"));
    EXPECT_THAT(Places::fromEnvironment().caches, ElementsAre(home.path("fast/cache"), home.path(".cache")));
    home.link("to-documents", home.folder("Documents"));
    home.folder("Papers/mine");
    home.file(".config/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Papers/mine\"\n");
    for (const std::string& value :
         {home.path(), home.outside("cache"), std::string("relative/cache"), home.path(".."),
          home.path("Documents"), home.path("Downloads/cache"), home.path("to-documents"),
          home.path("Papers"), home.path("Papers/mine/cache")}) {
        TempHome::setVariable("XDG_CACHE_HOME", value);
        EXPECT_THAT(Places::fromEnvironment().caches, ElementsAre(home.path(".cache"))) << value;
    }
    TempHome::setVariable("XDG_CONFIG_HOME", home.path("Papers/mine"));
    home.file("Papers/mine/user-dirs.dirs", "XDG_DOCUMENTS_DIR=\"$HOME/Papers/mine\"\n");
    EXPECT_THAT(Places::fromEnvironment().configs, ElementsAre(home.path(".config")))
        << "the folder's own file tells that it is the user's";
}

TEST(PlacesTest, homeFolderBehindALinkKeepsItsName)
{
    const TempHome home;
    home.folder("Music");
    home.file(".config/user-dirs.dirs", "XDG_MUSIC_DIR=\"" + home.path("Music") + "\"\n");
    const std::string linked = home.link(home.outside("linked"), home.path());
    TempHome::setVariable("HOME", linked);
    TempHome::setVariable("XDG_DATA_HOME", home.path("data"));

    const Places places = Places::fromEnvironment();
    EXPECT_EQ(places.home, linked);
    EXPECT_EQ(places.resolvedHome, home.path());
    EXPECT_TRUE(places.isHomeUsable);
    EXPECT_EQ(places.normalized(home.path("a/../b")), linked + "/b");
    EXPECT_EQ(places.normalized(home.path()), linked);
    EXPECT_EQ(places.normalized(home.outside("homes")), home.outside("homes"));
    EXPECT_EQ(places.data.front(), linked + "/data") << "variables may spell the resolved home folder";
    EXPECT_EQ(places.music, linked + "/Music");
}

TEST(PlacesTest, unusableHomeFolders)
{
    const TempHome home;
    const std::string badName = home.folder(home.outside("h\xFF"));
    for (const std::string& value :
         {std::string("/"), std::string("/.."), badName, home.link(home.outside("l"), "/")}) {
        TempHome::setVariable("HOME", value);
        EXPECT_FALSE(Places::fromEnvironment().isHomeUsable) << value;
    }
}

TEST(PlacesTest, missingHomeFolderIsReplacedByThePasswdEntry)
{
    const TempHome home;
    for (const std::string& value :
         {home.outside("gone"), std::string("relative"), std::string(), home.file("file")}) {
        TempHome::setVariable("HOME", value);
        EXPECT_NE(Places::fromEnvironment().home, value);
    }
}

TEST(PlacesTest, aPreparedRootStandsForTheWholeSystem)
{
    const TempHome home;
    const std::string system = home.outside("system");
    TempHome::setVariable("XDG_CONFIG_DIRS", "/a:relative:/a/:/b");
    const Places places = Places::fromEnvironment();
    EXPECT_TRUE(places.isHomeUsable);
    EXPECT_EQ(places.systemRoot, system);
    EXPECT_EQ(places.applications, home.outside("Applications"));
    EXPECT_EQ(places.library, home.outside("Library"));
    EXPECT_EQ(places.processes, system + "/proc");
    EXPECT_THAT(places.sharedConfigs, ElementsAre(system + "/etc/xdg", "/a", "/b"));
    EXPECT_THAT(places.sharedData, ElementsAre(system + "/usr/local/share", system + "/usr/share"));
    // Where nothing was prepared, nothing may be moved.
    for (const std::string& root : {std::string("/"), home.path(), home.outside("gone"), home.file("file"),
                                    home.folder(home.outside("beside")), home.link("root", "/")}) {
        TempHome::setVariable("ORLEN_PREPARED_ROOT", root);
        EXPECT_FALSE(Places::fromEnvironment().isHomeUsable) << root;
    }
    TempHome::setVariable("ORLEN_PREPARED_ROOT", "relative");
    EXPECT_EQ(Places::fromEnvironment().systemRoot, "");
    EXPECT_EQ(Places::fromEnvironment().applications, "/Applications");
}

TEST(PlacesTest, onlyExistingUserFoldersCount)
{
    const TempHome home;
    home.folder("Bilder");
    home.file("Musik", "a file, not a folder");
    home.file(".config/user-dirs.dirs", "XDG_PICTURES_DIR=\"$HOME/Bilder\"\nXDG_MUSIC_DIR=\"$HOME/Musik\"\n"
                                        "XDG_VIDEOS_DIR=\"$HOME/Filme\"\nXDG_DOCUMENTS_DIR=\"$HOME/Bilder\"\n"
                                        "XDG_DESKTOP_DIR=\"$HOME/\"\n");
    const Places places = Places::fromEnvironment();
    EXPECT_EQ(places.pictures, home.path("Bilder"));
    EXPECT_EQ(places.music, "");
    EXPECT_EQ(places.videos, "");
    EXPECT_EQ(places.desktop, "");
    EXPECT_THAT(places.userFolders(), ElementsAre(home.path("Bilder")));
}

TEST(PlacesTest, languagesComeInTheOrderOfPreference)
{
    const struct {
        const char* name;
        const char* language;
        const char* all;
        const char* messages;
        const char* lang;
        std::vector<std::string> tags;
    } cases[] = {
        {"a list wins", "de_AT:de:en", "fr_FR", "", "it_IT", {"de_AT", "de", "en"}},
        {"encoding and variant are cut", "", "ca_ES.UTF-8@valencia", "", "C", {"ca_ES"}},
        {"messages before the rest", "", "", "nl_NL.UTF-8", "it_IT", {"nl_NL"}},
        {"the last resort", "", "", "", "it_IT.UTF-8", {"it_IT"}},
        {"no language", "", "", "", "C.UTF-8", {}},
        {"repeats and gaps", "de::de:C:POSIX:", "", "", "", {"de"}},
    };
    const TempHome home;
    for (const auto& c : cases) {
        SCOPED_TRACE(c.name);
        TempHome::setVariable("LANGUAGE", c.language);
        TempHome::setVariable("LC_ALL", c.all);
        TempHome::setVariable("LC_MESSAGES", c.messages);
        TempHome::setVariable("LANG", c.lang);
        EXPECT_EQ(Places::fromEnvironment().languages, c.tags);
    }
}

TEST(PlacesTest, patternsStandForEveryFolderOfTheirWord)
{
    const TempHome home;
    Places places;
    places.home = "/h";
    places.user = 1000;
    places.caches = {"/h/fast", "/h/.cache"};
    places.data = {"/h/.local/share"};
    places.systemRoot = "/sys";
    EXPECT_THAT(places.expand("{H}/a"), ElementsAre("/h/a"));
    EXPECT_THAT(places.expand("{CACHE}/pip"), ElementsAre("/h/fast/pip", "/h/.cache/pip"));
    EXPECT_THAT(places.expand("{H}/.Trash-{UID}/files"), ElementsAre("/h/.Trash-1000/files"));
    EXPECT_THAT(places.expand("{ROOT}/opt"), ElementsAre("/sys/opt"));
    EXPECT_THAT(places.expand("/plain"), ElementsAre("/plain"));
    EXPECT_THAT(places.expand("{PICTURES}/x"), IsEmpty());
    EXPECT_THAT(places.expand("{UNKNOWN}/x"), IsEmpty());
}

TEST(PlacesTest, gameLibrariesBelowTheHomeFolderAreSteamFolders)
{
    const TempHome home;
    home.file(".local/share/Steam/steamapps/libraryfolders.vdf",
              "\"libraryfolders\"\n{\n\"0\"\n{\n\t\"path\"\t\t\"" + home.path(".local/share/Steam") +
                  "\"\n}\n\"1\"\n{\n\t\"path\"\t\t\"" + home.path("Games/Library") +
                  "/\"\n}\n\"2\" { \"path\" \"/mnt/games\" }\n\"3\" { \"path\" \"" + home.path() +
                  "\" }\n\"path\" \"" + home.path("cut"));
    home.folder(".steam/debian-installation");
    home.link(".steam/steam", home.path(".local/share/Steam"));
    const Places places = Places::fromEnvironment();
    EXPECT_THAT(places.expand("{STEAM}"),
                ElementsAre(home.path(".local/share/Steam"),
                            home.path(".var/app/com.valvesoftware.Steam/.local/share/Steam"),
                            home.path("snap/steam/common/.local/share/Steam"),
                            home.path(".steam/debian-installation"), home.path("Games/Library")));
}

} // namespace
} // namespace orlen

#include "clean/Safety.h"
#include "platform/text/PathText.h"
#include "scan/ScanFlag.h"
#include "scan/ScanProgress.h"
#include "scan/locations/LocationScanners.h"
#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::UnorderedElementsAre;

class LanguagePacksTest : public testing::Test {
protected:
    LanguagePacksTest()
    {
        Safety::refresh();
        prefer({"de_AT"});
    }

    static void prefer(const std::vector<std::string>& languages)
    {
        TempHome::reloadPlaces([&](Places& places) { places.languages = languages; });
    }

    [[nodiscard]] std::string resources(const std::string& bundle) const
    {
        return home.outside("Applications/" + bundle + "/Contents/Resources/");
    }

    void addTranslations(const std::string& bundle, const std::vector<std::string>& names) const
    {
        for (const std::string& name : names)
            home.fileOfSize(resources(bundle) + name + "/Main.strings", 4096);
    }

    void addIdentifier(const std::string& bundle, const std::string& identifier) const
    {
        home.file(home.outside("Applications/" + bundle + "/Contents/Info.plist"),
                  "<plist version=\"1.0\"><dict><key>CFBundleIdentifier</key><string>" + identifier +
                      "</string></dict></plist>");
    }

    [[nodiscard]] std::vector<FileEntry> scan() const
    {
        return LocationScanners(progress, flag.token()).languagePacks().front().items;
    }

    [[nodiscard]] std::vector<std::string> names() const
    {
        std::vector<std::string> names;
        for (const FileEntry& entry : scan())
            names.emplace_back(PathText::lastComponent(entry.path));
        return names;
    }

    TempHome home;
    mutable ScanProgress progress;
    ScanFlag flag;
};

TEST_F(LanguagePacksTest, translationsForOtherLanguagesAreListed)
{
    const std::vector<std::string> all{"de.lproj",    "de_CH.lproj", "DE.lproj",     "en.lproj",
                                       "en-GB.lproj", "Base.lproj",  "fr.lproj",     "pt-BR.lproj",
                                       "zh_CN.lproj", "den.lproj",   "German.lproj", "fr.nib"};
    struct Case {
        const char* name;
        std::vector<std::string> languages;
        std::vector<std::string> listed;
    };
    const Case cases[] = {
        {"German", {"de_AT"}, {"fr.lproj", "pt-BR.lproj", "zh_CN.lproj", "den.lproj", "German.lproj"}},
        {"capital letters and a hyphen",
         {"DE-ch", "PT"},
         {"fr.lproj", "zh_CN.lproj", "den.lproj", "German.lproj"}},
        {"none",
         {},
         {"de.lproj", "de_CH.lproj", "DE.lproj", "fr.lproj", "pt-BR.lproj", "zh_CN.lproj", "den.lproj",
          "German.lproj"}},
    };
    addTranslations("A.app", all);
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        prefer(c.languages);
        EXPECT_THAT(names(), testing::UnorderedElementsAreArray(c.listed));
    }
}

TEST_F(LanguagePacksTest, entriesOfAllApplicationsAreLargestFirstWithSizeAndDate)
{
    addTranslations("A.app", {"fr.lproj"});
    addTranslations("B.app", {"it.lproj"});
    home.fileOfSize(resources("B.app") + "it.lproj/More.strings", 8192);
    const std::vector<FileEntry> entries = scan();
    ASSERT_EQ(entries.size(), 2U);
    EXPECT_EQ(entries[0].path, resources("B.app") + "it.lproj");
    EXPECT_EQ(entries[0].size, 12'288);
    EXPECT_TRUE(entries[0].modified.has_value());
    EXPECT_TRUE(entries[0].notes.empty());
    EXPECT_EQ(entries[1].size, 4096);
}

TEST_F(LanguagePacksTest, applicationsOfTheMakerAndLockedOnesAreLeftWhole)
{
    for (const char* bundle : {"Maker.app", "Other.app", "Locked.app", "Plain", "Broken.app"})
        addTranslations(bundle, {"fr.lproj"});
    addIdentifier("Maker.app", "com.apple.Thing");
    addIdentifier("Other.app", "com.applepie.Thing");
    home.file(home.outside("Applications/Broken.app/Contents/Info.plist"), "bplist00 nonsense");
    TempHome::setMode(home.outside("Applications/Locked.app"), 0555);
    std::vector<std::string> paths;
    for (const FileEntry& entry : scan())
        paths.push_back(entry.path);
    EXPECT_THAT(paths, UnorderedElementsAre(resources("Other.app") + "fr.lproj",
                                            resources("Broken.app") + "fr.lproj"));
}

TEST_F(LanguagePacksTest, whatIsNoFolderOrEmptyIsNotListed)
{
    addTranslations("A.app", {"fr.lproj"});
    home.file(resources("A.app") + "it.lproj", "a file");
    home.folder(resources("A.app") + "es.lproj");
    home.link(resources("A.app") + "pl.lproj", resources("A.app") + "fr.lproj");
    home.fileOfSize(resources("A.app") + "\xFF.lproj/x", 4096);
    EXPECT_THAT(names(), ElementsAre("fr.lproj"));
}

TEST_F(LanguagePacksTest, cancelledOrWithoutApplicationsThereIsNothing)
{
    EXPECT_THAT(scan(), IsEmpty());
    addTranslations("A.app", {"fr.lproj"});
    flag.cancel();
    EXPECT_THAT(scan(), IsEmpty());
}

} // namespace
} // namespace orlen

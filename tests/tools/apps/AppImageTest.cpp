#include "tools/apps/AppImage.h"
#include "tools/apps/AppNames.h"

#include "platform/files/Folder.h"
#include "tools/apps/AppHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;

TEST(AppImageTest, onlyTheFirstBytesTellWhatAFileIs)
{
    const AppHome home;
    const std::string whole = AppHome::imageBytes();
    struct Case {
        const char* name;
        std::string bytes;
        bool isOne;
    };
    std::string other = whole;
    other[1] = 'e';
    const Case cases[] = {{"second kind", whole, true},
                          {"first kind", AppHome::imageBytes('\1'), true},
                          {"kind below", AppHome::imageBytes('\0'), false},
                          {"kind above", AppHome::imageBytes('\3'), false},
                          {"no more than the mark", whole.substr(0, 11), true},
                          {"one byte less", whole.substr(0, 10), false},
                          {"eight bytes", whole.substr(0, 8), false},
                          {"a plain program",
                           "\x7F"
                           "ELF" +
                               std::string(60, '\0'),
                           false},
                          {"no program", other, false},
                          {"empty", "", false}};
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(AppImage::isHead(c.bytes), c.isOne);
        home.file("x.AppImage", c.bytes);
        const auto folder = openFolder(home.path());
        EXPECT_EQ(AppImage::isOneAt(folder.value().get(), "x.AppImage"), c.isOne);
    }
    home.link("link", home.image("x.AppImage"));
    EXPECT_FALSE(AppImage::isOneAt(openFolder(home.path()).value().get(), "link"));
}

TEST(AppImageTest, aFileNameGivesAName)
{
    struct Case {
        const char* file;
        const char* name;
    };
    constexpr Case cases[] = {
        {"Foo-1.2.3-x86_64.AppImage", "Foo"},
        {"foo_bar-v2.AppImage", "foo bar"},
        {"Foo_Bar-x86_64-1.0.appimage", "Foo Bar"},
        {"Foo.x86_64.AppImage", "Foo"},
        {"Foo-aarch64", "Foo"},
        {"Foo-amd64ish.AppImage", "Foo amd64ish"},
        {"My App 1.2+git.AppImage", "My App"},
        {"2048.AppImage", "2048"},
        {"7zip-22.AppImage", "7zip"},
        {"Foo-3d-viewer.AppImage", "Foo 3d viewer"},
        {"-.AppImage", "-"},
        {".AppImage", ".AppImage"},
    };
    for (const Case& c : cases)
        EXPECT_EQ(AppImage::nameFromFile(c.file), c.name) << c.file;
}

TEST(AppNamesTest, identifiersAreToldFromVersions)
{
    for (const char* text : {"org.example.App", "io.github.some-one.App_2", "a.b.c.d"})
        EXPECT_TRUE(AppNames::isIdentifier(text)) << text;
    for (const char* text : {"", "App", "example.App", "Foo-1.2.3", "a..b", "org.example.", ".a.b", "a.b.c d",
                             "a.b.c/d", "org.example.\xC3\xA4"})
        EXPECT_FALSE(AppNames::isIdentifier(text)) << text;
}

TEST(AppNamesTest, formsAreTheSpellingsOfAName)
{
    EXPECT_THAT(AppNames::forms("My Ärger"),
                ElementsAre("my \xC3\xA4rger", "my\xC3\xA4rger", "my-\xC3\xA4rger", "my_\xC3\xA4rger"));
    EXPECT_THAT(AppNames::forms("Foo"), ElementsAre("foo"));
    EXPECT_THAT(AppNames::forms(""), IsEmpty());
    EXPECT_TRUE(AppNames::isAmbiguous("abc"));
    EXPECT_TRUE(AppNames::isAmbiguous("\xC3\xA4\xC3\xA4\xC3\xA4")); // three characters of two bytes
    EXPECT_FALSE(AppNames::isAmbiguous("abcd"));
    EXPECT_TRUE(AppNames::isAmbiguous("electron"));
}

} // namespace
} // namespace orlen

#include "platform/PathText.h"

#include <gtest/gtest.h>

namespace orlen {
namespace {

TEST(PathTextTest, pathsAreTakenApart)
{
    const struct {
        const char* path;
        const char* last;
        const char* parent;
    } cases[] = {{"/a/b", "b", "/a"}, {"/a/b//", "b", "/a"}, {"/a//b", "b", "/a"},
                 {"/a", "a", "/"},    {"//a", "a", "/"},     {"/", "", "/"},
                 {"", "", ""},        {"a", "a", ""},        {"a/b", "b", "a"}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path);
        EXPECT_EQ(PathText::lastComponent(c.path), c.last);
        EXPECT_EQ(PathText::parent(c.path), c.parent);
    }
}

TEST(PathTextTest, extensionIsBehindTheLastDot)
{
    const struct {
        const char* path;
        const char* stem;
        const char* extension;
    } cases[] = {{"/x/a.tar.gz", "a.tar", "gz"}, {"/x.d/a", "a", ""}, {"/x/.bashrc", ".bashrc", ""},
                 {"/x/.a.b", ".a", "b"},         {"/x/a.", "a", ""},  {"/", "", ""}};
    for (const auto& c : cases) {
        SCOPED_TRACE(c.path);
        EXPECT_EQ(PathText::stem(c.path), c.stem);
        EXPECT_EQ(PathText::extension(c.path), c.extension);
    }
}

TEST(PathTextTest, standardizedResolvesDotsAsText)
{
    const struct {
        const char* path;
        const char* standard;
    } cases[] = {{"/a/./b/", "/a/b"},  {"/a//b", "/a/b"},     {"/a/../../b", "/b"},
                 {"/..", "/"},         {"//", "/"},           {"", ""},
                 {"../a/..", ""},      {"a/../b", "b"},       {"./a", "a"},
                 {"/a/...", "/a/..."}, {"/.a/..b", "/.a/..b"}};
    for (const auto& c : cases)
        EXPECT_EQ(PathText::standardized(c.path), c.standard) << c.path;
}

TEST(PathTextTest, joinPutsOneSlash)
{
    EXPECT_EQ(PathText::join("/a", "b"), "/a/b");
    EXPECT_EQ(PathText::join("/", "b"), "/b");
    EXPECT_EQ(PathText::join("/a/", "b"), "/a/b");
}

TEST(PathTextTest, siblingWithTheSameBeginningIsNotBelow)
{
    EXPECT_TRUE(PathText::isAtOrBelow("/a/b", "/a/b"));
    EXPECT_TRUE(PathText::isAtOrBelow("/a/b/c", "/a/b"));
    EXPECT_TRUE(PathText::isAtOrBelow("/a", "/"));
    EXPECT_FALSE(PathText::isAtOrBelow("/a/bc", "/a/b"));
    EXPECT_FALSE(PathText::isAtOrBelow("/a", "/a/b"));
}

TEST(PathTextTest, onlyAsciiLettersAreMadeSmall)
{
    EXPECT_EQ(PathText::asciiLower("AZ[Ä.JPG"), "az[Ä.jpg");
}

TEST(PathTextTest, brokenUtf8IsRecognised)
{
    for (const char* text : {"", "plain", "grün", "日本", "😀"})
        EXPECT_TRUE(PathText::isValidUtf8(text)) << text;
    for (const char* text : {"\xFF", "a\xC3", "\xC0\xAF", "\xED\xA0\x80", "\xF4\x90\x80\x80", "\x80"})
        EXPECT_FALSE(PathText::isValidUtf8(text)) << text;
}

TEST(PathTextTest, displayedNameStaysOnOneReadableLine)
{
    EXPECT_EQ(PathText::forDisplay("grün 😀"), "grün 😀");
    EXPECT_EQ(PathText::forDisplay("a\nb\x1B[31m\x7F"), "a?b?[31m?");
    EXPECT_EQ(PathText::forDisplay("inv\xE2\x80\xAEgpj.exe"), "inv?gpj.exe");
    EXPECT_EQ(PathText::forDisplay("a\xFF"
                                   "b\xC3"),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD");
}

} // namespace
} // namespace orlen

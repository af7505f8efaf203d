#include "platform/text/PathText.h"

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
    for (const char* hidden :
         {"\u00AD", "\u034F", "\u061C", "\u115F",     "\u180E",     "\u200B",    "\u200C", "\u200D",
          "\u200E", "\u200F", "\u2028", "\u2029",     "\u2060",     "\u2064",    "\u2069", "\uFE00",
          "\uFE0F", "\uFEFF", "\uFFF9", "\U000E0001", "\U000E0061", "\U000E0100"})
        EXPECT_EQ(PathText::forDisplay("a" + std::string(hidden) + "b"), "a?b") << hidden;
    for (const char* seen : {"\U0001F469\u200D\U0001F4BB", "\U0001F469\U0001F3FD\u200D\U0001F680",
                             "\U0001F3F3\uFE0F\u200D\U0001F308", "\u2764\uFE0F", "1\uFE0F\u20E3",
                             "\U0001F1EA\U0001F1FA", "e\u0301", "हिन्दी", "\u0601\u0661"})
        EXPECT_EQ(PathText::forDisplay(seen), seen);
    EXPECT_EQ(PathText::forDisplay("\U0001F469\u200D"), "\U0001F469?");
    EXPECT_EQ(PathText::forDisplay("a\u200D\U0001F4BB"), "a?\U0001F4BB");
    EXPECT_EQ(PathText::forDisplay("1\uFE0F"), "1?");
    EXPECT_EQ(PathText::forDisplay("\u2764\uFE0F\uFE0Fx"), "\u2764\uFE0F?x");
    EXPECT_EQ(PathText::forDisplay("a\xFF"
                                   "b\xC3"),
              "a\xEF\xBF\xBD"
              "b\xEF\xBF\xBD");
}

} // namespace
} // namespace orlen

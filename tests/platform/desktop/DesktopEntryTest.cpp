#include "platform/desktop/DesktopEntry.h"

#include "support/TempHome.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;

DesktopEntry entry(const std::string& lines)
{
    return DesktopEntry::parsed("[Desktop Entry]\n" + lines).value_or(DesktopEntry());
}

TEST(DesktopEntryTest, onlyTheEntrysOwnGroupCounts)
{
    const auto parsed = DesktopEntry::parsed("Name=before\n[Other]\nName=other\n\n  [Desktop Entry]  \r\n"
                                             "# Name=comment\r\n Name = first \r\nName=second\nno entry\n"
                                             "=nameless\n[Desktop Action x]\nIcon=y\n");
    ASSERT_TRUE(parsed.has_value());
    EXPECT_EQ(parsed->text("Name"), "first");
    EXPECT_FALSE(parsed->has("Icon"));
    EXPECT_FALSE(DesktopEntry::parsed("[Desktop Entry x]\nName=x\n").has_value());
    EXPECT_FALSE(DesktopEntry::parsed("").has_value());
}

TEST(DesktopEntryTest, valuesLoseTheirEscapes)
{
    const DesktopEntry read = entry("A=a\\sb\\\\n\\tc\\q\\\nB=\xFF\nC=\nD=x" + std::string(1, '\0') +
                                    "y\nE=a\\;b;;c\\\\;d\nF=true\nG=false\nH=True\n");
    EXPECT_EQ(read.text("A"), "a b\\n\tc\\q\\");
    EXPECT_EQ(read.text("B"), "");
    EXPECT_TRUE(read.has("B"));
    EXPECT_TRUE(read.has("C"));
    EXPECT_FALSE(read.has("D"));
    EXPECT_THAT(read.list("E"), ElementsAre("a;b", "c\\", "d"));
    EXPECT_THAT(read.list("B"), IsEmpty());
    EXPECT_EQ(read.flag("F"), true);
    EXPECT_EQ(read.flag("G"), false);
    EXPECT_FALSE(read.flag("H").has_value());
}

TEST(DesktopEntryTest, theFirstLanguageThatTheEntryHasCounts)
{
    const DesktopEntry read = entry("Name=plain\nName[de]=de\nName[pt_BR]=br\nName[fr]=\n");
    const auto name = [&](std::vector<std::string> languages) {
        return read.localizedText("Name", languages);
    };
    EXPECT_EQ(name({"de_AT"}), "de");
    EXPECT_EQ(name({"it", "pt_BR", "de"}), "br");
    EXPECT_EQ(name({"pt", "fr"}), "plain");
    EXPECT_EQ(name({}), "plain");
}

TEST(DesktopEntryTest, aCommandLineBecomesWords)
{
    struct Case {
        const char* name;
        const char* line;
        std::vector<std::string> words;
    };
    const Case cases[] = {
        {"plain", "/usr/bin/foo  %U", {"/usr/bin/foo", "%U"}},
        {"quoted", R"("/home/u/My Apps/x.AppImage" %U)", {"/home/u/My Apps/x.AppImage", "%U"}},
        {"escapes in quotes", R"("a\\"b\\$c\\\\\\\\d" e)", {"a\"b$c\\\\d", "e"}},
        {"a backslash that escapes nothing", R"("a\\qb")", {R"(a\qb)"}},
        {"quotes within a word", "a\"b c\"d", {"ab cd"}},
        {"single quotes", "'a b' c", {"a b", "c"}},
        {"empty word", R"(a "" b)", {"a", "", "b"}},
        {"open quote", R"(a "b c)", {}},
        {"percent", "100%% %f", {"100%", "%f"}},
        {"environment", "env A=b C= /bin/x D=e", {"/bin/x", "D=e"}},
        {"environment with options", "/usr/bin/env -i -u LANG A=b x", {"x"}},
        {"environment alone", "env A=b -u", {}},
        {"no environment", "environment A=b", {"environment", "A=b"}},
        {"nothing", "", {}},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_THAT(entry(std::string("Exec=") + c.line).command("Exec"), ElementsAreArray(c.words));
    }
}

TEST(DesktopEntryTest, filesThatAreTooLongOrNoFilesGiveNothing)
{
    const TempHome home;
    const std::string start = "[Desktop Entry]\nName=x\n#";
    const auto ofSize = [&](std::size_t size) { return start + std::string(size - start.size(), 'x'); };
    EXPECT_TRUE(DesktopEntry::read(home.file("a", ofSize(DesktopEntry::kSizeLimit))).has_value());
    EXPECT_FALSE(DesktopEntry::read(home.file("b", ofSize(DesktopEntry::kSizeLimit + 1))).has_value());
    EXPECT_FALSE(DesktopEntry::read(home.link("c", home.path("a"))).has_value());
    EXPECT_FALSE(DesktopEntry::read(home.path()).has_value());
    EXPECT_FALSE(DesktopEntry::read(home.path("missing")).has_value());
}

} // namespace
} // namespace orlen

#include "cli/Table.h"

#include "app/Format.h"
#include "platform/text/DisplayWidth.h"
#include "support/TempHome.h"

#include <gtest/gtest.h>

#include <sstream>

namespace orlen {

namespace {

/// Standard output of a test is no terminal that anybody colours.
const Colours& plain()
{
    ::setenv("NO_COLOR", "1", 1);
    static const Colours colours(Terminal::Stream::output);
    return colours;
}

Table sample(const std::string& path)
{
    Table table({{"Rating", Table::Kind::text}, {"File", Table::Kind::path}, {"Size", Table::Kind::number}});
    table.addRow({{"Safe"}, {path}, {"1.2 GB"}});
    table.addRow({{}, {"b"}, {"9 KB"}});
    table.addLine(1, {"a note about b"});
    return table;
}

} // namespace

TEST(TableTest, columnsAreAlignedWithoutTrailingSpaces)
{
    EXPECT_EQ(sample("abcd").text(plain(), std::nullopt), "Rating  File    Size\n"
                                                          "Safe    abcd  1.2 GB\n"
                                                          "        b       9 KB\n"
                                                          "        a note about b\n");
}

TEST(TableTest, wideCharactersTakeTwoColumnsAndMarksNone)
{
    EXPECT_EQ(DisplayWidth::columns("日本語"), 6);
    EXPECT_EQ(DisplayWidth::columns("e\u0301te\u0301"), 3);
    EXPECT_EQ(DisplayWidth::columns("ein\u200bfach"), 7);
    Table table({{"", Table::Kind::text}, {"", Table::Kind::number}});
    table.addRow({{"日本"}, {"1"}});
    table.addRow({{"abcd"}, {"22"}});
    EXPECT_EQ(table.text(plain(), std::nullopt), "日本   1\nabcd  22\n");
}

TEST(TableTest, onlyThePathGivesWayWhenTheTerminalIsNarrow)
{
    const std::string path = "~/Videos/a folder with a long name/and another/film.mkv";
    std::istringstream lines(sample(path).text(plain(), 50));
    for (std::string line; std::getline(lines, line);)
        EXPECT_LE(DisplayWidth::columns(line), 50) << line;
    const std::string text = sample(path).text(plain(), 50);
    EXPECT_NE(text.find("~/Videos/"), std::string::npos);
    EXPECT_NE(text.find("…"), std::string::npos);
    EXPECT_NE(text.find("film.mkv  1.2 GB"), std::string::npos);
    EXPECT_NE(sample(path).text(plain(), std::nullopt).find(path), std::string::npos);
}

TEST(TableTest, aColumnInWhichNothingStandsTakesNoRoom)
{
    Table table({{"", Table::Kind::number}, {"", Table::Kind::text}, {"", Table::Kind::text}});
    table.addRow({{"1"}, {}, {"x"}});
    EXPECT_EQ(table.text(plain(), std::nullopt), "1  x\n");
}

TEST(DisplayWidthTest, elidedTextNeverExceedsItsRoom)
{
    const std::string text = "~/日本語のフォルダ/e\u0301te\u0301/a long name.txt";
    for (int limit = 0; limit <= DisplayWidth::columns(text) + 1; ++limit) {
        EXPECT_LE(DisplayWidth::columns(DisplayWidth::elidedMiddle(text, limit)), limit);
        EXPECT_LE(DisplayWidth::columns(DisplayWidth::elidedEnd(text, limit)), limit);
    }
    EXPECT_EQ(DisplayWidth::elidedEnd("abcdef", 6), "abcdef");
    EXPECT_EQ(DisplayWidth::elidedEnd("abcdef", 5), "abcd…");
    EXPECT_EQ(DisplayWidth::elidedMiddle("abcdefghij", 7), "ab…ghij");
}

TEST(FormatTest, aPathIsShownOnOneLineWithoutTheHomeFolder)
{
    const TempHome home;
    EXPECT_EQ(Format::shownPath(home.path("a\nb")), "~/a?b");
    EXPECT_EQ(Format::shownPath(home.path()), "~");
    EXPECT_EQ(Format::shownPath(home.path() + "x"), home.path() + "x");
}

TEST(FormatTest, noNameInAMessageReachesTheTerminalAsItIs)
{
    const Message inside{message("{name} cache"), {{"name", "a\x1b[31mb"}}};
    const Message line = Message::joined({Message::verbatim("x\ny"), inside}, Several::Joint::facts);
    EXPECT_EQ(Format::displayable(line).base(), "x?y · a?[31mb cache");
}

} // namespace orlen

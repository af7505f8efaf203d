#include "platform/text/LanguageTools.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace orlen {
namespace {

using testing::ElementsAre;
using testing::IsEmpty;
using namespace std::string_view_literals;

TEST(LanguageToolsTest, wordsLeaveOutSpacesAndPunctuation)
{
    EXPECT_THAT(LanguageTools::words({}), IsEmpty());
    EXPECT_THAT(LanguageTools::words(" -- (!) \n\t"), IsEmpty());
    EXPECT_THAT(LanguageTools::words("my tax return, 2024!"), ElementsAre("my", "tax", "return", "2024"));
    EXPECT_THAT(LanguageTools::words("don't w2 3.14 1,000"), ElementsAre("don't", "w2", "3.14", "1,000"));
    EXPECT_THAT(LanguageTools::words("Überweisung e\xCC\x81t\xCC\xA7 👍🏽"),
                ElementsAre("Überweisung", "e\xCC\x81t\xCC\xA7"));
}

TEST(LanguageToolsTest, bytesThatAreNotUtf8SeparateWords)
{
    EXPECT_THAT(LanguageTools::words("tax\xFFreturn"), ElementsAre("tax", "return"));
    EXPECT_THAT(LanguageTools::words("\x80\xE2\x82 a \xF0\x9F"), ElementsAre("a"));
    EXPECT_THAT(LanguageTools::words("a\0b"sv), ElementsAre("a", "b"));
}

TEST(LanguageToolsTest, lowerCaseFollowsUnicodeWhateverTheLocale)
{
    EXPECT_EQ(LanguageTools::lowerCase(""), "");
    EXPECT_EQ(LanguageTools::lowerCase("PDF Invoice 7"), "pdf invoice 7");
    EXPECT_EQ(LanguageTools::lowerCase("ÄÉÞ"), "äéþ");
    EXPECT_EQ(LanguageTools::lowerCase("TITLE I"), "title i");
    EXPECT_EQ(LanguageTools::lowerCase("ΟΔΟΣ"), "οδος"); // a sigma at the end of a word has its own form
    EXPECT_TRUE(LanguageTools::lowerCase("TAX\xFF").starts_with("tax"));
}

TEST(LanguageToolsTest, camelCaseIsSplitBeforeALargeLetterAfterASmallOne)
{
    struct Case {
        const char* name;
        std::string_view text;
        std::string_view split;
    };
    constexpr Case cases[] = {
        {"words", "myTaxReturn", "my Tax Return"},
        {"run of large letters", "PDFInvoice", "PDFInvoice"},
        {"after a run", "myPDFInvoice", "my PDFInvoice"},
        {"digit between", "tax2024Return", "tax2024Return"},
        {"space already there", "my Tax", "my Tax"},
        {"other alphabets", "моёДело", "моё Дело"},
        {"composed accent", "caféTax", "café Tax"},
        {"decomposed accent", "cafe\xCC\x81Tax", "cafe\xCC\x81 Tax"},
        {"accented large letter", "myÉtat", "my État"},
        {"no letters of two cases", "契約書A", "契約書A"},
        {"broken bytes stay",
         "a\xFF"
         "B\xC3",
         "a\xFF"
         "B\xC3"},
        {"nothing", "", ""},
    };
    for (const Case& c : cases) {
        SCOPED_TRACE(c.name);
        EXPECT_EQ(LanguageTools::splitCamelCase(c.text), c.split);
    }
}

TEST(LanguageToolsTest, digitsOfEveryScriptCount)
{
    for (const char* text : {"scan7", "٣مسح", "स्कैन४", "１２３"})
        EXPECT_TRUE(LanguageTools::hasDecimalDigit(text)) << text;
    for (const char* text : {"", "scan", "№ⅣⅩ½²", "\xFF\xD9"})
        EXPECT_FALSE(LanguageTools::hasDecimalDigit(text)) << text;
}

TEST(LanguageToolsTest, distanceHasNoValueWithoutVectors)
{
    EXPECT_EQ(LanguageTools::hasEmbedding(), LanguageTools::distance("tax", "tax").has_value());
}

} // namespace
} // namespace orlen

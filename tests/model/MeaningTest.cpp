#include "model/Rater.h"
#include "model/RaterTables.h"
#include "platform/text/LanguageTools.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <fstream>
#include <iterator>
#include <string>
#include <vector>

namespace orlen {
namespace {

/// None of these words was labelled when the vectors were learnt.
std::vector<std::string> wordsOf(const char* list)
{
    std::ifstream file(std::string(ORLEN_WORD_LISTS "/") + list);
    return {std::istream_iterator<std::string>(file), {}};
}

bool isCloseToAnchor(const std::string& word)
{
    return std::ranges::any_of(RaterTables::anchorWords(), [&](std::string_view anchor) {
        return LanguageTools::distance(word, anchor).value_or(2) < 0.62;
    });
}

std::string spelledOut(const std::vector<std::string>& words)
{
    std::string text;
    for (const std::string& word : words)
        text += ' ' + word;
    return text;
}

TEST(MeaningTest, wordsForPapersAPersonWouldMissAreClose)
{
    std::vector<std::string> words = wordsOf("papers");
    ASSERT_EQ(words.size(), 200U);
    std::erase_if(words, isCloseToAnchor);
    EXPECT_LE(words.size(), 30U) << spelledOut(words);
}

TEST(MeaningTest, ordinaryWordsOfFileNamesAreNot)
{
    std::vector<std::string> words = wordsOf("ordinary");
    ASSERT_EQ(words.size(), 1000U);
    std::erase_if(words, [](const std::string& word) { return !isCloseToAnchor(word); });
    EXPECT_LE(words.size(), 10U) << spelledOut(words);
}

TEST(MeaningTest, namesAreJudgedByTheMeaningOfTheirWords)
{
    for (const char* name : {"payroll.xlsx", "pension statement.pdf", "remittance.docx", "Pensions_2023.pdf",
                             "myRemittances-2.docx", "old subpoena.pdf"})
        EXPECT_TRUE(Rater::isSensitiveName(name)) << name;
    for (const char* name : {"holiday.mp4", "Sunset over Lisbon.jpg", "backup-render.blend",
                             "guitar demo.wav", "xyzzyq.bin", "pension2.bin"})
        EXPECT_FALSE(Rater::isSensitiveName(name)) << name;
}

} // namespace
} // namespace orlen

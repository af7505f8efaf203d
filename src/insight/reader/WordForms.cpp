#include "insight/reader/WordForms.h"

#include "platform/text/LanguageTools.h"

#include <algorithm>
#include <cstddef>
#include <utility>

namespace orlen::AskReader {

namespace {

/// The entry of the stem, or of the stem with the vowel that an ending took away.
const Lexicon::Entry* entryOf(const Lexicon& lexicon, const std::string& stem)
{
    const Lexicon::Entry* const plain = lexicon.find(stem);
    return plain != nullptr ? plain : lexicon.find(stem + "e");
}

} // namespace

bool isRightAsItStands(const Lexicon& lexicon, std::string_view word, const IsName& isName)
{
    const bool isEnglish = &lexicon == Lexicon::all().data();
    return (isEnglish && LanguageTools::lemma(std::string(word)).has_value()) || isName(word);
}

std::string unswapped(const Lexicon& lexicon, const std::string& word, const IsName& isName)
{
    constexpr std::size_t kShortest = 3;
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    if (word.size() < kShortest || lexicon.isWord(word) || !std::ranges::all_of(word, isLetter) ||
        isRightAsItStands(lexicon, word, isName))
        return word;
    // The first letter is seldom the wrong one.
    std::string only;
    for (std::size_t i = word.size() - 1; i-- > 0;) {
        std::string other = word;
        std::swap(other[i], other[i + 1]);
        if (other == word || !lexicon.isWord(other) || (i == 0 && !only.empty()))
            continue;
        if (!only.empty())
            return word;
        only = std::move(other);
    }
    return only.empty() ? word : only;
}

std::string respelt(const Lexicon& lexicon, const std::string& word, const IsName& isName)
{
    constexpr std::size_t kShortest = 5;
    const auto isLetter = [](char c) { return c >= 'a' && c <= 'z'; };
    if (word.size() < kShortest || lexicon.isWord(word) || !std::ranges::all_of(word, isLetter) ||
        inflectedWord(lexicon, word) != nullptr || isRightAsItStands(lexicon, word, isName))
        return word;
    const std::string_view only = lexicon.onlyWordLike(word);
    return only.empty() ? word : std::string(only);
}

const Lexicon::Entry* inflectedWord(const Lexicon& lexicon, std::string_view word)
{
    constexpr std::size_t kShortestStem = 4;
    constexpr std::string_view kEndings[] = {"s", "es", "ed", "d", "ing"};
    if (&lexicon != Lexicon::all().data())
        return nullptr;
    for (const std::string_view ending : kEndings) {
        if (!word.ends_with(ending) || word.size() < kShortestStem + ending.size())
            continue;
        if (const auto* const entry =
                entryOf(lexicon, std::string(word.substr(0, word.size() - ending.size()))))
            return entry;
    }
    return nullptr;
}

const Lexicon::Entry* wordBeforeClitic(const Lexicon& lexicon, const std::string& word)
{
    const std::string verb(lexicon.withoutClitic(word));
    return verb.empty() ? nullptr : entryOf(lexicon, verb);
}

bool isAdverb(std::string_view word)
{
    constexpr std::size_t kShortest = 7;
    constexpr std::string_view kEndings[] = {"ally",  "ably",   "ously",  "ently", "antly",
                                             "ement", "amente", "emente", "lmente"};
    return word.size() >= kShortest &&
           std::ranges::any_of(kEndings, [&](std::string_view ending) { return word.ends_with(ending); });
}

} // namespace orlen::AskReader

#include "insight/reader/NameFit.h"

#include "insight/reader/Lexicon.h"
#include "insight/reader/LowerName.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>

namespace orlen::AskReader {

namespace {

/// Parts of words shorter than this stand in too many names.
constexpr std::size_t kShortestPart = 4;
constexpr std::size_t kShortestMistypedName = 6;

/// One word of one letter.
bool isOneLetter(const std::vector<std::string>& words)
{
    const auto isStart = [](char c) { return (static_cast<unsigned char>(c) & 0xC0U) != 0x80U; };
    return words.size() == 1 && std::ranges::count_if(words.front(), isStart) == 1;
}

} // namespace

Wanted::Wanted(std::string_view name)
    : m_name(lowered(name)), m_path(lowered(pathIn(name))), m_words(wordsOfName(m_name)),
      m_home(Places::current().home), m_isLetter(isOneLetter(m_words)),
      m_mayBePart(
          std::ranges::all_of(m_words, [](const std::string& word) { return word.size() >= kShortestPart; })),
      m_mayBeMistyped(std::ranges::any_of(
          m_words, [](const std::string& word) { return word.size() >= kShortestMistypedName; }))
{
}

std::optional<std::vector<NameIndex::Place>> Wanted::places(const NameIndex& index, Fit least) const
{
    if (!m_path.empty() || m_words.empty())
        return std::nullopt;
    if (least == Fit::mistyped)
        return m_mayBeMistyped ? index.mistyped(m_name, m_words, kShortestMistypedName)
                               : std::vector<NameIndex::Place>();
    if (least == Fit::part)
        return m_mayBePart ? index.withParts(m_words) : std::vector<NameIndex::Place>();
    return index.withWords(m_words);
}

Fit Wanted::fit(std::string_view path, Fit least)
{
    if (!m_path.empty())
        return path.size() == m_path.size() && lowered(path) == m_path ? Fit::whole : Fit::none;
    lowerInto(m_lower, PathText::lastComponent(path));
    const std::string_view name = m_lower;
    if (name == m_name)
        return Fit::whole;
    if (name.starts_with(m_name) && PathText::stem(name) == m_name)
        return Fit::stem;
    if (m_words.empty() || m_isLetter || least > Fit::words)
        return Fit::none;
    if (holdsWords(name))
        return Fit::words;
    if (least <= Fit::folder && isInFolderNamed(path))
        return Fit::folder;
    if (least <= Fit::part && m_mayBePart && holdsParts(name))
        return Fit::part;
    return least <= Fit::mistyped && m_mayBeMistyped && holdsMistyped(name) ? Fit::mistyped : Fit::none;
}

bool Wanted::isInFolderNamed(std::string_view path)
{
    if (PathText::isAtOrBelow(path, m_home))
        path.remove_prefix(m_home.size());
    // Most entries lie in the folder of the one before, and most folders hold none of the words.
    const std::string_view folder = path.substr(0, path.size() - PathText::lastComponent(path).size());
    if (folder != m_folder) {
        m_folder = folder;
        lowerInto(m_lowerFolders, folder);
        m_folderHoldsAny = std::ranges::any_of(
            m_words, [&](const std::string& word) { return m_lowerFolders.find(word) != std::string::npos; });
    }
    if (!m_folderHoldsAny)
        return false;
    lowerInto(m_lowerPath, path);
    return holdsWords(m_lowerPath);
}

bool Wanted::holdsWords(std::string_view text) const
{
    return std::ranges::all_of(m_words, [&](const std::string& word) { return holdsWord(text, word); });
}

bool Wanted::holdsParts(std::string_view text) const
{
    return std::ranges::all_of(m_words, [&](const std::string& word) {
        return anyWord(text, [&](std::string_view each) { return each.starts_with(word); });
    });
}

bool Wanted::holdsMistyped(std::string_view text) const
{
    // The whole name counts as one word: its ending alone is too short to be forgiven an error.
    return isOneLetterApart(m_name, text) || std::ranges::all_of(m_words, [&](const std::string& word) {
               return anyWord(text, [&](std::string_view each) {
                   return each == word ||
                          (word.size() >= kShortestMistypedName && isOneLetterApart(word, each));
               });
           });
}

} // namespace orlen::AskReader

#include "platform/text/Lemmatizer.h"

#include "platform/text/PathText.h"

#include <hunspell.hxx>

#include <algorithm>
#include <array>
#include <exception>
#include <fstream>
#include <string_view>

namespace orlen {

namespace {

/// Longer than any English word; the library's own buffers end at 100 bytes.
constexpr std::size_t kLongestWord = 64;

bool isReadable(const std::string& path)
{
    return std::ifstream(path, std::ios::binary).good();
}

std::unique_ptr<Hunspell> loadFirst(const std::vector<std::string>& folders)
{
    for (const std::string& folder : folders) {
        const std::string affixes = PathText::join(folder, "en_US.aff");
        const std::string words = PathText::join(folder, "en_US.dic");
        if (!isReadable(affixes) || !isReadable(words))
            continue;
        try {
            return std::make_unique<Hunspell>(affixes.c_str(), words.c_str());
        } catch (const std::exception&) {
            return nullptr; // no lemmas, as without a dictionary
        }
    }
    return nullptr;
}

/// Letters and apostrophes only, up to a limit. English inflects no other words, and nothing else (other
/// scripts, broken encodings, control characters) should reach the library.
bool isPlainWord(std::string_view word)
{
    const auto isPlain = [](char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || c == '\''; };
    return !word.empty() && word.size() <= kLongestWord && std::ranges::all_of(word, isPlain);
}

/// The stem with the word's prefix restored, since the library removes prefixes too: for it, "returns" has
/// the stem "turn" and "deeds" has "ed".
std::string withPrefix(std::string_view word, std::string_view stem)
{
    std::size_t prefix = word.find(stem);
    if (prefix == std::string_view::npos &&
        !stem.empty()) // the ending may replace a letter: "invoicing", "voice"
        prefix = word.find(stem.substr(0, stem.size() - 1));
    if (prefix == std::string_view::npos)
        prefix = 0;
    return std::string(word.substr(0, prefix)).append(stem);
}

struct Ending {
    std::string_view replaced; ///< of the base form
    std::string_view ending;   ///< of the inflected word
};

constexpr std::array<Ending, 9> kInflections{{{"", "s"},
                                              {"", "es"},
                                              {"y", "ies"},
                                              {"", "'s"},
                                              {"", "d"},
                                              {"", "ed"},
                                              {"y", "ied"},
                                              {"", "ing"},
                                              {"e", "ing"}}};

bool isInflected(std::string_view word, std::string_view base)
{
    const auto [wordEnd, baseEnd] = std::ranges::mismatch(word, base);
    const std::string_view ending(wordEnd, word.end());
    const std::string_view replaced(baseEnd, base.end());
    return std::ranges::any_of(kInflections, [&](const Ending& inflection) {
        return inflection.ending == ending && inflection.replaced == replaced;
    });
}

} // namespace

Lemmatizer::Lemmatizer(const std::vector<std::string>& folders) : m_dictionary(loadFirst(folders)) {}

Lemmatizer::~Lemmatizer() = default;

std::optional<std::string> Lemmatizer::lemma(const std::string& word) const
{
    if (!isPlainWord(word))
        return std::nullopt;
    const std::vector<std::string> found = stems(word);
    if (found.empty())
        return std::nullopt;
    // Of several stems, the lemma is the first one that an inflection leads to. The others undo derivations
    // and are different words: "statement" is not a form of "state", nor "medically" of "medical".
    for (const std::string& stem : found) {
        std::string base = withPrefix(word, stem);
        if (isInflected(word, base))
            return base;
    }
    return word;
}

std::vector<std::string> Lemmatizer::stems(const std::string& word) const
{
    if (m_dictionary == nullptr)
        return {};
    try {
        const std::lock_guard lock(m_mutex);
        return m_dictionary->stem(word);
    } catch (const std::exception&) {
        return {};
    }
}

} // namespace orlen

#include "insight/reader/Lexicon.h"

#include "model/Rating.h"
#include "model/Words.h"
#include "platform/text/LanguageTools.h"

#include <algorithm>
#include <cstdint>
#include <utility>
#include <vector>

namespace orlen::AskReader {

namespace {

/// A word shorter than this differs from too many others by one letter; by two.
constexpr std::size_t kShortestMistyped = 5;
constexpr std::size_t kShortestTwice = 9;
constexpr std::size_t kShortestMeant = 4;

struct Fold {
    std::string_view letters;
    std::string_view plain;
};

constexpr Fold kFolds[] = {
    {"àáâãäåā", "a"}, {"èéêëēě", "e"}, {"ìíîïī", "i"}, {"òóôõöōø", "o"}, {"ùúûüū", "u"}, {"ýÿ", "y"},
    {"ñń", "n"},      {"çćč", "c"},    {"ß", "ss"},    {"œ", "oe"},      {"æ", "ae"},    {"š", "s"},
};

std::size_t lengthOfLetter(char lead)
{
    const auto byte = static_cast<unsigned char>(lead);
    return byte < 0xC0 ? 1 : byte < 0xE0 ? 2 : byte < 0xF0 ? 3 : 4;
}

std::string_view folded(std::string_view letter)
{
    // Accents that follow their letter.
    if (letter >= "\u0300" && letter <= "\u036F")
        return {};
    for (const Fold& fold : kFolds) {
        if (fold.letters.find(letter) != std::string_view::npos)
            return fold.plain;
    }
    return letter;
}

/// The phrase without alternatives: each of those in the first parentheses, with what the others make of it.
template <typename Visit>
void eachVariant(const std::string& phrase, Visit visit)
{
    const std::size_t open = phrase.find('(');
    const std::size_t close = phrase.find(')', open);
    if (open == std::string::npos || close == std::string::npos) {
        visit(std::string_view(phrase));
        return;
    }
    const std::string_view whole = phrase;
    std::string_view choices = whole.substr(open + 1, close - open - 1);
    for (bool hasMore = true; hasMore;) {
        const std::size_t end = std::min(choices.find('|'), choices.size());
        const std::string_view choice = choices.substr(0, end);
        std::string_view behind = whole.substr(close + 1);
        // With no word chosen, there is one space less.
        if (choice.empty() && behind.starts_with(' '))
            behind.remove_prefix(1);
        std::string variant = std::string(whole.substr(0, open)).append(choice).append(behind);
        if (variant.ends_with(' '))
            variant.pop_back();
        eachVariant(variant, visit);
        hasMore = end < choices.size();
        choices.remove_prefix(std::min(end + 1, choices.size()));
    }
}

template <typename Visit>
void eachPhrase(std::string_view phrases, Visit visit)
{
    while (!phrases.empty()) {
        const std::size_t end = std::min(phrases.find(','), phrases.size());
        eachVariant(std::string(phrases.substr(0, end)), visit);
        phrases.remove_prefix(std::min(end + 1, phrases.size()));
    }
}

/// The German way to write umlauts where a keyboard has none; empty if there are none.
std::string withoutUmlauts(std::string_view phrase)
{
    constexpr Fold kUmlauts[] = {{"ä", "ae"}, {"ö", "oe"}, {"ü", "ue"}};
    std::string text(phrase);
    bool hasAny = false;
    for (const Fold& umlaut : kUmlauts) {
        for (std::size_t at = text.find(umlaut.letters); at != std::string::npos;
             at = text.find(umlaut.letters)) {
            text.replace(at, umlaut.letters.size(), umlaut.plain);
            hasAny = true;
        }
    }
    return hasAny ? text : std::string();
}

/// Whether at most two letters too many, too few, wrong or swapped separate the words. A word of a question
/// is short: the whole table of distances fits on the stack.
bool isTwoLettersApart(std::string_view a, std::string_view b)
{
    constexpr std::size_t kLongest = 32;
    if (a.size() > kLongest || b.size() > kLongest || a.size() > b.size() + 2 || b.size() > a.size() + 2 ||
        a.front() != b.front() || b.size() + 1 < kShortestTwice || b.find(' ') != std::string_view::npos)
        return false;
    std::array<std::array<std::uint8_t, kLongest + 1>, kLongest + 1> cost{};
    for (std::size_t i = 0; i <= a.size(); ++i) {
        for (std::size_t j = 0; j <= b.size(); ++j) {
            if (i == 0 || j == 0) {
                cost[i][j] = static_cast<std::uint8_t>(i + j);
                continue;
            }
            const int change = cost[i - 1][j - 1] + (a[i - 1] == b[j - 1] ? 0 : 1);
            int least = std::min({change, cost[i - 1][j] + 1, cost[i][j - 1] + 1});
            if (i > 1 && j > 1 && a[i - 1] == b[j - 2] && a[i - 2] == b[j - 1])
                least = std::min(least, cost[i - 2][j - 2] + 1);
            cost[i][j] = static_cast<std::uint8_t>(least);
        }
    }
    return cost[a.size()][b.size()] <= 2;
}

} // namespace

std::string plainLetters(std::string_view text)
{
    std::string lower = LanguageTools::lowerCase(text);
    if (std::ranges::all_of(lower, [](char c) { return static_cast<unsigned char>(c) < 0x80; }))
        return lower;
    std::string plain;
    for (std::string_view rest = lower; !rest.empty();) {
        const std::string_view letter = rest.substr(0, lengthOfLetter(rest.front()));
        plain += letter.size() == 1 ? letter : folded(letter);
        rest.remove_prefix(letter.size());
    }
    return plain;
}

bool isOneLetterApart(std::string_view a, std::string_view b)
{
    if (a.size() > b.size())
        std::swap(a, b);
    if (b.size() - a.size() > 1)
        return false;
    std::size_t at = 0;
    while (at < a.size() && a[at] == b[at])
        ++at;
    if (a.size() < b.size())
        return a.substr(at) == b.substr(at + 1);
    if (at == a.size())
        return false;
    if (a.substr(at + 1) == b.substr(at + 1))
        return true;
    return at + 1 < a.size() && a[at] == b[at + 1] && a[at + 1] == b[at] &&
           a.substr(at + 2) == b.substr(at + 2);
}

Lexicon::Lexicon(const Language& language)
    : m_joinsClitics(language.joinsClitics), m_hasCompounds(language.hasCompounds)
{
    for (const WordRow& row : language.ofOrlen)
        add(row.words, {row.sense, nullptr});
    for (const WordRow& row : language.words)
        add(row.words, {row.sense, nullptr});
    for (const WordRow& row : language.measures)
        add(row.words, {row.sense, nullptr});
    for (const SubjectRow& row : language.subjects)
        add(row.words, {Sense::subject, &subjectFor(row.subject)});
    for (const FigureRow& row : language.figures)
        add(row);
    eachPhrase(language.elided, [&](std::string_view word) {
        m_elided.emplace(word);
        m_words.emplace(word);
    });
    eachPhrase(language.clitics, [&](std::string_view word) { m_clitics.emplace(word); });
    eachPhrase(language.ones, [&](std::string_view word) { m_ones.emplace(plainLetters(word)); });
    eachPhrase(language.others, [&](std::string_view phrase) { m_others.emplace(plainLetters(phrase)); });
}

std::span<const Lexicon> Lexicon::all()
{
    static const std::array lexicons{Lexicon(english()), Lexicon(german()), Lexicon(french()),
                                     Lexicon(spanish()), Lexicon(italian())};
    return lexicons;
}

std::string_view Lexicon::withoutClitic(std::string_view word) const
{
    if (!m_joinsClitics)
        return {};
    for (const std::string& clitic : m_clitics) {
        if (!word.ends_with(clitic))
            continue;
        const std::string_view verb = word.substr(0, word.size() - clitic.size());
        if (verb.ends_with('r') || verb.ends_with("ndo"))
            return verb;
    }
    return {};
}

bool Lexicon::meansOthers(std::string_view phrase) const
{
    return m_others.contains(plainLetters(phrase));
}

bool Lexicon::meansOne(std::string_view phrase) const
{
    const std::string plain = plainLetters(phrase);
    bool hasOne = false;
    for (std::string_view rest = plain; !rest.empty();) {
        const std::size_t end = std::min(rest.find(' '), rest.size());
        if (!m_ones.contains(std::string(rest.substr(0, end))))
            return false;
        hasOne = true;
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    return hasOne;
}

void Lexicon::addWords(std::string_view phrase)
{
    while (!phrase.empty()) {
        const std::size_t end = std::min(phrase.find(' '), phrase.size());
        m_words.emplace(phrase.substr(0, end));
        phrase.remove_prefix(std::min(end + 1, phrase.size()));
    }
}

void Lexicon::add(std::string_view phrases, Entry entry)
{
    eachPhrase(phrases, [&](std::string_view phrase) {
        const std::string plain = plainLetters(phrase);
        const bool hasAccents = phrase != plain;
        const auto [known, isNew] = m_phrases.try_emplace(plain, Listed{entry, hasAccents});
        if (hasAccents)
            m_accented.try_emplace(std::string(phrase), entry);
        else if (!isNew && known->second.hasAccents)
            known->second = {entry, false};
        addWords(plain);
        if (const std::string typed = withoutUmlauts(phrase); m_hasCompounds && !typed.empty())
            m_phrases.try_emplace(plainLetters(typed), Listed{entry, true});
    });
}

void Lexicon::add(const FigureRow& row)
{
    eachPhrase(row.words, [&](std::string_view phrase) {
        auto& figures = m_figures[static_cast<std::size_t>(row.figure)];
        const std::string plain = plainLetters(phrase);
        figures.try_emplace(plain, row.value);
        addWords(plain);
        if (const std::string typed = withoutUmlauts(phrase); m_hasCompounds && !typed.empty())
            figures.try_emplace(plainLetters(typed), row.value);
    });
}

const Lexicon::Entry* Lexicon::find(const std::string& phrase) const
{
    const auto found = m_phrases.find(phrase);
    return found == m_phrases.end() ? nullptr : &found->second.entry;
}

const Lexicon::Entry* Lexicon::findAccented(const std::string& word) const
{
    const auto found = m_accented.find(word);
    return found == m_accented.end() ? nullptr : &found->second;
}

const Lexicon::Entry* Lexicon::onlyOneLike(std::string_view word,
                                           bool isLike(std::string_view, std::string_view)) const
{
    const Entry* only = nullptr;
    for (const auto& [known, listed] : m_phrases) {
        const Entry& entry = listed.entry;
        if (known.size() < kShortestMeant || !isLike(word, known))
            continue;
        if (only != nullptr && *only != entry)
            return nullptr;
        only = &entry;
    }
    return only;
}

const Lexicon::Entry* Lexicon::findMistyped(std::string_view word) const
{
    if (word.size() < kShortestMistyped)
        return nullptr;
    const Entry* const near = onlyOneLike(word, isOneLetterApart);
    return near != nullptr || word.size() < kShortestTwice ? near : onlyOneLike(word, isTwoLettersApart);
}

std::string_view Lexicon::onlyWordLike(std::string_view word) const
{
    std::string_view only;
    for (const std::string& known : m_words) {
        if (known.size() < kShortestMeant || known.front() != word.front() || !isOneLetterApart(word, known))
            continue;
        if (!only.empty())
            return {};
        only = known;
    }
    return only;
}

std::optional<double> Lexicon::figure(Figure figure, const std::string& word) const
{
    const auto& figures = m_figures[static_cast<std::size_t>(figure)];
    const auto found = figures.find(word);
    return found == figures.end() ? std::nullopt : std::optional(found->second);
}

std::optional<Sense> ratingCalled(const std::string& plain)
{
    for (const auto& [rating, sense] :
         {std::pair(Rating::safe, Sense::safe), std::pair(Rating::review, Sense::review),
          std::pair(Rating::keep, Sense::keep)}) {
        if (plainLetters(shown(label(rating))) == plain)
            return sense;
    }
    return std::nullopt;
}

} // namespace orlen::AskReader

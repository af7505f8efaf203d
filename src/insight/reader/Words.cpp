#include "insight/reader/Words.h"

#include <algorithm>
#include <array>
#include <cstddef>
#include <iterator>
#include <utility>

namespace orlen::AskReader {

namespace {

constexpr std::string_view kSpaces = " \t\r\n";
constexpr std::string_view kBehind = "?!.,;:()[]{}<>'`\"";
// A leading dot marks a hidden name.
constexpr std::string_view kBefore = "?!,;:()[]{}<>'`\"";
constexpr std::string_view kStops = "?!.,;:";

std::string_view withoutPunctuation(std::string_view word)
{
    if (word.size() == 1 && (word == "<" || word == ">"))
        return word;
    const std::size_t start = word.find_first_not_of(kBefore);
    if (start == std::string_view::npos)
        return {};
    const std::size_t end = word.find_last_not_of(kBehind);
    return end == std::string_view::npos || end < start ? std::string_view()
                                                        : word.substr(start, end - start + 1);
}

/// Typographic marks and spaces as plain ones.
std::string withPlainMarks(std::string_view text)
{
    struct Mark {
        std::string_view from;
        char to;
    };
    constexpr std::array kMarks{Mark{"“", '"'}, Mark{"”", '"'},      Mark{"„", '"'},      Mark{"«", '"'},
                                Mark{"»", '"'}, Mark{"’", '\''},     Mark{"‘", '\''},     Mark{"¿", ' '},
                                Mark{"¡", ' '}, Mark{"\u00A0", ' '}, Mark{"\u202F", ' '}, Mark{"…", ' '},
                                Mark{"–", ' '}, Mark{"—", ' '}};
    std::string plain;
    while (!text.empty()) {
        const auto* const mark =
            std::ranges::find_if(kMarks, [&](const Mark& each) { return text.starts_with(each.from); });
        plain += mark == kMarks.end() ? text.front() : mark->to;
        text.remove_prefix(mark == kMarks.end() ? 1 : mark->from.size());
    }
    return plain;
}

Word part(std::string_view typed, bool endsClause)
{
    return {std::string(typed), plainLetters(typed), false, endsClause};
}

/// Adds the word, with a short form before its apostrophe as a word of its own.
void addElided(std::vector<Word>& words, const Lexicon& lexicon, const Word& word)
{
    const std::size_t at = word.typed.find('\'');
    if (at != std::string::npos && at + 1 < word.typed.size() &&
        lexicon.isElided(plainLetters(word.typed.substr(0, at)))) {
        words.push_back(part(std::string_view(word.typed).substr(0, at), false));
        addElided(words, lexicon, part(std::string_view(word.typed).substr(at + 1), word.endsClause));
        return;
    }
    words.push_back(word);
}

/// The parts between hyphens if all of them are known; else none.
std::vector<Word> knownParts(const Lexicon& lexicon, const Word& word)
{
    std::vector<Word> parts;
    for (std::string_view rest = word.typed; !rest.empty();) {
        const std::size_t end = std::min(rest.find('-'), rest.size());
        parts.push_back(part(rest.substr(0, end), false));
        if (!lexicon.isWord(parts.back().plain))
            return {};
        rest.remove_prefix(std::min(end + 1, rest.size()));
    }
    if (!parts.empty())
        parts.back().endsClause = word.endsClause;
    return parts;
}

/// "target-Ordner", "Telegram-Cache": a name and what it is one of; else none.
std::vector<Word> nameAndKind(const Lexicon& lexicon, const Word& word)
{
    const std::string_view typed = word.typed;
    const std::size_t at = typed.rfind('-');
    if (!lexicon.hasCompounds() || at == 0 || at + 1 >= typed.size())
        return {};
    Word kind = part(typed.substr(at + 1), word.endsClause);
    const Lexicon::Entry* const entry = lexicon.find(kind.plain);
    if (entry == nullptr || (entry->sense != Sense::folder && entry->sense != Sense::subject))
        return {};
    return {part(typed.substr(0, at), false), std::move(kind)};
}

} // namespace

namespace {

/// In French, spaces stand inside of quotation marks.
std::string_view withoutSpaces(std::string_view text)
{
    const std::size_t start = text.find_first_not_of(kSpaces);
    return start == std::string_view::npos ? std::string_view()
                                           : text.substr(start, text.find_last_not_of(kSpaces) - start + 1);
}

} // namespace

std::vector<Word> wordsOf(std::string_view question)
{
    const std::string plain = withPlainMarks(question);
    std::string_view rest = plain;
    std::vector<Word> words;
    while (true) {
        rest.remove_prefix(std::min(rest.find_first_not_of(kSpaces), rest.size()));
        if (rest.empty())
            return words;
        const std::size_t close = rest.front() == '"' ? rest.find('"', 1) : std::string_view::npos;
        const bool isQuoted = close != std::string_view::npos && close > 1;
        const std::size_t end = isQuoted ? close + 1 : std::min(rest.find_first_of(kSpaces), rest.size());
        const std::string_view word =
            isQuoted ? withoutSpaces(rest.substr(1, close - 1)) : withoutPunctuation(rest.substr(0, end));
        const bool endsClause = kStops.find(rest[end - 1]) != std::string_view::npos;
        // "Root / sudo", but not the path.
        const bool isBetween =
            word == "/" && !words.empty() && rest.find_first_not_of(kSpaces, end) < rest.size();
        const bool isDash =
            !isQuoted && (isBetween || word.find_first_not_of("-_=+|") == std::string_view::npos);
        if (!word.empty() && !isDash)
            words.push_back({std::string(word), plainLetters(word), isQuoted, endsClause});
        else if (endsClause && !words.empty())
            words.back().endsClause = true;
        rest.remove_prefix(end);
    }
}

std::vector<Word> wordsIn(const Lexicon& lexicon, const std::vector<Word>& words)
{
    std::vector<Word> apart;
    constexpr std::string_view kOf = "'s";
    for (const Word& word : words) {
        if (word.isQuoted || lexicon.find(word.plain) != nullptr || lexicon.isWord(word.plain))
            apart.push_back(word);
        else if (word.plain.size() > kOf.size() && word.plain.ends_with(kOf)) // "Mozilla's cache"
            apart.push_back(part(word.typed.substr(0, word.typed.size() - kOf.size()), word.endsClause));
        else
            addElided(apart, lexicon, word);
    }
    std::vector<Word> known;
    for (Word& word : apart) {
        const bool isWhole =
            word.isQuoted || word.typed.find('-') == std::string::npos || lexicon.isWord(word.plain);
        std::vector<Word> parts = isWhole ? std::vector<Word>() : knownParts(lexicon, word);
        if (parts.empty() && !isWhole)
            parts = nameAndKind(lexicon, word);
        if (parts.empty())
            known.push_back(std::move(word));
        else
            std::ranges::move(parts, std::back_inserter(known));
    }
    return known;
}

std::optional<std::pair<std::string, std::string>> compound(const Lexicon& lexicon, const std::string& word)
{
    constexpr std::size_t kShortestFirst = 3;
    constexpr std::size_t kShortestLast = 4;
    if (!lexicon.hasCompounds() || word.find_first_of("./_0123456789") != std::string::npos)
        return std::nullopt;
    for (std::size_t at = kShortestFirst; at + kShortestLast <= word.size(); ++at) {
        const std::string last = word.substr(at);
        if (lexicon.find(last) == nullptr)
            continue;
        // "Download-s-ordner", "Medien-ordner"
        for (const std::string_view joint : {"", "s", "n", "en"}) {
            const std::string first = word.substr(0, at);
            if (first.ends_with(joint) && first.size() >= kShortestFirst + joint.size()) {
                std::string stem = first.substr(0, first.size() - joint.size());
                if (const auto* const entry = lexicon.find(stem);
                    entry != nullptr && entry->sense != Sense::filler)
                    return std::pair(std::move(stem), last);
            }
        }
    }
    return std::nullopt;
}

} // namespace orlen::AskReader

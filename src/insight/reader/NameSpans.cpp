#include "insight/reader/NameSpans.h"

#include "insight/reader/LowerName.h"
#include "insight/reader/Names.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <cstddef>
#include <functional>
#include <set>
#include <span>
#include <string>
#include <utility>

namespace orlen::AskReader {

namespace {

constexpr std::size_t kMostWords = 8;
/// Longer texts are no questions about names.
constexpr std::size_t kMostWordsOfText = 30;

/// Says nothing in any language, so it can only be part of a name.
bool isOfName(const Word& word)
{
    if (PathText::extension(word.plain).size() >= 2)
        return true;
    return std::ranges::none_of(Lexicon::all(),
                                [&](const Lexicon& lexicon) { return lexicon.isWord(word.plain); });
}

std::string joined(const std::vector<Word>& words, std::size_t from, std::size_t count)
{
    std::string text = words[from].whole;
    for (std::size_t i = 1; i < count; ++i)
        text += " " + words[from + i].whole;
    constexpr std::string_view kAround = "?!.,;:'\"`";
    text.erase(text.find_last_not_of(kAround) + 1);
    return text;
}

/// A run of words that may be a name.
struct Run {
    std::size_t from = 0;
    std::size_t count = 0;
    std::string text;
    bool isName = false;
};

bool isNameOfScan(const AskContext& context, const std::string& text)
{
    if (isWholeName(context, text))
        return true;
    const std::string plain = plainLetters(text);
    const auto isIt = [&](const auto& each) { return plainLetters(each.name) == plain; };
    return (context.apps && std::ranges::any_of(*context.apps, isIt)) ||
           (context.startupItems && std::ranges::any_of(*context.startupItems, isIt));
}

/// All runs of two words or more that hold one that can only be part of a name, longest first.
std::vector<Run> runsIn(const std::vector<Word>& words)
{
    std::vector<Run> runs;
    for (std::size_t count = std::min(kMostWords, words.size()); count >= 2; --count) {
        for (std::size_t from = 0; from + count <= words.size(); ++from) {
            const auto run = std::span(words).subspan(from, count);
            const auto endsInside = [](const Word& word) { return word.isQuoted || word.endsClause; };
            if (run.back().isQuoted || std::any_of(run.begin(), run.end() - 1, endsInside) ||
                std::ranges::none_of(run, isOfName))
                continue;
            runs.push_back({from, count, joined(words, from, count)});
        }
    }
    return runs;
}

void findOnDisk(std::vector<Run>& runs, const HomeLook& home)
{
    std::set<std::string, std::less<>> names;
    for (const Run& run : runs) {
        if (!run.isName)
            names.insert(lowered(run.text));
    }
    std::set<std::string> found;
    for (const SeenName& seen : home.named(names)) {
        const std::string name = lowered(PathText::lastComponent(seen.path));
        found.insert(name);
        found.emplace(PathText::stem(name));
    }
    for (Run& run : runs)
        run.isName = run.isName || found.contains(lowered(run.text));
}

} // namespace

std::vector<Word> withNames(std::vector<Word> words, const AskContext& context)
{
    if (words.size() > kMostWordsOfText || std::ranges::none_of(words, isOfName))
        return words;
    std::vector<Run> runs = runsIn(words);
    for (Run& run : runs)
        run.isName = isNameOfScan(context, run.text);
    if (context.home != nullptr)
        findOnDisk(runs, *context.home);
    std::vector<bool> isTaken(words.size());
    std::vector<Run> names;
    for (Run& run : runs) {
        const auto from = isTaken.begin() + static_cast<std::ptrdiff_t>(run.from);
        const auto to = from + static_cast<std::ptrdiff_t>(run.count);
        if (!run.isName || std::find(from, to, true) != to)
            continue;
        std::fill(from, to, true);
        names.push_back(std::move(run));
    }
    std::ranges::sort(names, std::greater{}, &Run::from);
    for (const Run& name : names) {
        const auto first = words.begin() + static_cast<std::ptrdiff_t>(name.from);
        const auto last = first + static_cast<std::ptrdiff_t>(name.count) - 1;
        *first = {name.text, plainLetters(name.text), true, last->endsClause};
        words.erase(first + 1, last + 1);
    }
    return words;
}

} // namespace orlen::AskReader

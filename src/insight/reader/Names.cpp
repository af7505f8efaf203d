#include "insight/reader/Names.h"

#include "insight/reader/Lexicon.h"
#include "platform/files/Places.h"
#include "platform/text/LanguageTools.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <functional>
#include <unordered_set>

namespace orlen::AskReader {

namespace {

bool isAscii(std::string_view text)
{
    return std::ranges::all_of(text, [](char c) { return static_cast<unsigned char>(c) < 0x80; });
}

/// Whole texts take a library call; most names are ASCII.
std::string lowered(std::string_view text)
{
    return isAscii(text) ? PathText::asciiLower(text) : LanguageTools::lowerCase(text);
}

bool isWordByte(char c)
{
    return (c >= 'a' && c <= 'z') || (c >= '0' && c <= '9') || static_cast<unsigned char>(c) >= 0x80;
}

/// Calls `visit` with each word of a text in lower case until it returns true; whether it did.
template <typename Visit>
bool anyWord(std::string_view text, Visit visit)
{
    while (!text.empty()) {
        const auto start = std::ranges::find_if(text, isWordByte);
        const auto end = std::find_if_not(start, text.end(), isWordByte);
        if (start == text.end())
            return false;
        if (visit(std::string_view(start, end)))
            return true;
        text = std::string_view(end, text.end());
    }
    return false;
}

std::vector<std::string> wordsIn(std::string_view text)
{
    std::vector<std::string> words;
    anyWord(text, [&](std::string_view word) {
        words.emplace_back(word);
        return false;
    });
    return words;
}

/// Parts of words shorter than this stand in too many names.
constexpr std::size_t kShortestPart = 4;
constexpr std::size_t kShortestMistypedName = 5;

/// The name that is looked for.
class Wanted {
public:
    explicit Wanted(std::string_view name)
        : m_name(lowered(name)), m_path(lowered(pathIn(name))), m_words(wordsIn(m_name)),
          m_mayBePart(std::ranges::all_of(
              m_words, [](const std::string& word) { return word.size() >= kShortestPart; })),
          m_mayBeMistyped(std::ranges::any_of(
              m_words, [](const std::string& word) { return word.size() >= kShortestMistypedName; }))
    {
    }

    /// `path` as the kernel gave it. A fit below `least` is not looked for.
    [[nodiscard]] Fit fit(std::string_view path, Fit least) const
    {
        const std::string lower = lowered(path);
        if (!m_path.empty())
            return lower == m_path ? Fit::whole : Fit::none;
        const std::string_view name = PathText::lastComponent(lower);
        if (name == m_name)
            return Fit::whole;
        if (PathText::stem(name) == m_name)
            return Fit::stem;
        if (m_words.empty() || least > Fit::words)
            return Fit::none;
        if (holdsWords(name))
            return Fit::words;
        if (least <= Fit::folder && holdsWords(belowHome(lower)))
            return Fit::folder;
        if (least <= Fit::part && m_mayBePart && holdsParts(name))
            return Fit::part;
        return least <= Fit::mistyped && m_mayBeMistyped && holdsMistyped(name) ? Fit::mistyped : Fit::none;
    }

private:
    /// The last folders of the path, which say whose it is.
    static std::string_view belowHome(std::string_view path)
    {
        const std::string& home = Places::current().home;
        if (PathText::isAtOrBelow(path, lowered(home)))
            path.remove_prefix(home.size());
        return path;
    }

    [[nodiscard]] bool holdsWords(std::string_view text) const
    {
        return std::ranges::all_of(m_words, [&](const std::string& word) {
            return text.find(word) != std::string_view::npos &&
                   anyWord(text, [&](std::string_view each) { return each == word; });
        });
    }

    [[nodiscard]] bool holdsParts(std::string_view text) const
    {
        return std::ranges::all_of(
            m_words, [&](const std::string& word) { return text.find(word) != std::string_view::npos; });
    }

    [[nodiscard]] bool holdsMistyped(std::string_view text) const
    {
        return std::ranges::all_of(m_words, [&](const std::string& word) {
            return anyWord(text, [&](std::string_view each) {
                return each == word ||
                       (word.size() >= kShortestMistypedName && Lexicon::isOneLetterApart(word, each));
            });
        });
    }

    std::string m_name;
    std::string m_path;
    std::vector<std::string> m_words;
    bool m_mayBePart;
    bool m_mayBeMistyped;
};

/// Keeps what fits best.
class Best {
public:
    explicit Best(const Wanted& wanted) : m_wanted(wanted) {}

    /// Whether the path belongs to the best so far; a better one drops the others.
    bool take(std::string_view path)
    {
        const Fit fit = m_wanted.fit(path, m_found.fit);
        if (fit == Fit::none || fit < m_found.fit)
            return false;
        if (fit > m_found.fit) {
            m_found = {};
            m_found.fit = fit;
        }
        return true;
    }

    Found& found() { return m_found; }

private:
    const Wanted& m_wanted;
    Found m_found;
};

void lookInFindings(const std::vector<Finding>& findings, const std::vector<FindingKind>& kinds, Best& best)
{
    for (const Finding& finding : findings) {
        if (!kinds.empty() && std::ranges::find(kinds, finding.kind) == kinds.end())
            continue;
        for (const FileEntry& entry : finding.items) {
            if (best.take(entry.path))
                best.found().hits.push_back({&finding, &entry});
        }
    }
}

void lookInBreakdown(const StorageBreakdown& breakdown, Best& best)
{
    for (const CategoryFolder& folder : breakdown.folders) {
        if (best.take(folder.path))
            best.found().measured.push_back({folder.path, folder.bytes, folder.category});
        for (const CategoryFolder::Item& item : folder.largest) {
            std::string path = PathText::join(folder.path, item.name);
            if (best.take(path))
                best.found().measured.push_back({std::move(path), item.bytes, folder.category});
        }
    }
}

void lookInHistory(const std::vector<CleanRecord>& history, Best& best)
{
    for (const CleanRecord& record : history) {
        for (const TrashedItem& item : record.items) {
            if (!item.restored && best.take(item.original))
                best.found().trashed.push_back(&item);
        }
    }
}

/// Several findings may list a path; the first one speaks for it.
void keepEachOnce(Found& found)
{
    std::unordered_set<std::string_view> paths;
    std::erase_if(found.hits, [&](const Hit& hit) { return !paths.insert(hit.entry->path).second; });
    std::erase_if(found.measured, [&](const Measured& each) { return !paths.insert(each.path).second; });
    std::ranges::stable_sort(found.hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    std::ranges::stable_sort(found.measured, std::greater{}, &Measured::bytes);
}

} // namespace

Found findNamed(const AskContext& context, std::string_view name, const std::vector<FindingKind>& kinds)
{
    const Wanted wanted(name);
    Best best(wanted);
    lookInFindings(context.findings, kinds, best);
    if (kinds.empty()) {
        lookInBreakdown(context.breakdown, best);
        lookInHistory(context.history, best);
    }
    keepEachOnce(best.found());
    return std::move(best.found());
}

bool isWordOfName(const AskContext& context, std::string_view word)
{
    const auto has = [&](std::string_view path) {
        return anyWord(lowered(PathText::lastComponent(path)),
                       [&](std::string_view each) { return each == word; });
    };
    const auto isNamed = [&](const Finding& finding) {
        return std::ranges::any_of(finding.items, has, &FileEntry::path);
    };
    return std::ranges::any_of(context.findings, isNamed) ||
           std::ranges::any_of(context.breakdown.folders, [&](const CategoryFolder& folder) {
               return has(folder.path) ||
                      std::ranges::any_of(folder.largest, has, &CategoryFolder::Item::name);
           });
}

std::string pathIn(std::string_view text)
{
    const std::string& home = Places::current().home;
    if (text == "~" || text.starts_with("~/"))
        return Places::current().normalized(home + std::string(text.substr(1)));
    return text.size() > 1 && text.starts_with("/") ? Places::current().normalized(text) : std::string();
}

std::string tilde(std::string_view path)
{
    const std::string& home = Places::current().home;
    if (home.size() > 1 && PathText::isAtOrBelow(path, home))
        return PathText::forDisplay("~" + std::string(path.substr(home.size())));
    return PathText::forDisplay(path);
}

} // namespace orlen::AskReader

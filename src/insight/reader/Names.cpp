#include "insight/reader/Names.h"

#include "insight/reader/Lexicon.h"
#include "insight/reader/LowerName.h"
#include "insight/reader/NameFit.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <functional>
#include <map>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orlen::AskReader {

namespace {

/// Keeps what fits best.
class Best {
public:
    /// Nothing that fits less than `least` counts.
    Best(std::string_view name, Fit least) : m_wanted(name), m_least(least) {}

    /// Whether the path belongs to the best so far; a better one drops the others.
    bool take(std::string_view path)
    {
        const Fit fit = m_wanted.fit(path, std::max(m_found.fit, m_least));
        if (fit == Fit::none || fit < m_found.fit)
            return false;
        if (fit > m_found.fit) {
            m_found = {};
            m_found.fit = fit;
        }
        return true;
    }

    Found& found() { return m_found; }
    [[nodiscard]] std::optional<std::vector<NameIndex::Place>> places(const NameIndex& index) const
    {
        return m_wanted.places(index, m_least);
    }

private:
    Wanted m_wanted;
    Fit m_least;
    Found m_found;
};

void lookInFindings(const AskContext& context, const std::vector<FindingKind>& kinds, Best& best)
{
    const auto look = [&](const Finding& finding, const FileEntry& entry) {
        const bool isWanted = kinds.empty() || std::ranges::find(kinds, finding.kind) != kinds.end();
        if (isWanted && best.take(entry.path))
            best.found().hits.push_back({&finding, &entry});
    };
    const std::shared_ptr<const NameIndex> index = context.names->of(context.findings);
    if (const auto places = best.places(*index)) {
        for (const auto& [finding, entry] : *places)
            look(context.findings[finding], context.findings[finding].items[entry]);
        return;
    }
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items)
            look(finding, entry);
    }
}

/// What has the name, whole or before its ending, or lies at the path. A bare word of a question may be meant
/// as a word: only what is the person's own, or not deep in hidden folders, has it as a name.
void lookInHome(const AskContext& context, std::string_view name, Best& best)
{
    if (context.home == nullptr)
        return;
    constexpr std::ptrdiff_t kDeep = 4;
    const std::shared_ptr<const HomeNames> names = context.names->of(context.home);
    const HomeFiles& home = *context.home;
    const std::string lower = lowered(name);
    const std::string path = lowered(pathIn(name));
    const std::string& root = Places::current().home;
    std::vector<HomeNames::Item> items;
    if (path.empty()) {
        items = names->named(lower);
        std::ranges::move(names->withStem(lower), std::back_inserter(items));
    } else if (PathText::isAtOrBelow(path, lowered(root))) {
        if (const auto item = names->at(std::string_view(path).substr(root.size())))
            items.push_back(*item);
    }
    const bool isWord = path.empty() && lower.find_first_of(". ") == std::string::npos;
    for (const HomeNames::Item& item : items) {
        std::string found = names->pathOf(item);
        // Virtual machines lie in folders of programs, and are the person's own for all that.
        const bool isMachine = PathText::lastComponent(PathText::parent(found)) == "images";
        if (isWord && !names->isOwn(item) && !isMachine &&
            std::ranges::count(found.substr(root.size()), '/') >= kDeep)
            continue;
        if (!best.take(found))
            continue;
        Measured one{std::move(found), 0, {}};
        one.kind = item.isFolder ? Measured::Kind::folder : Measured::Kind::file;
        one.isOwn = names->isOwn(item);
        one.bytes = item.isFolder ? home.folder(item.number).bytes : home.file(item.number).bytes;
        if (!item.isFolder)
            one.changed = home.file(item.number).changed;
        best.found().measured.push_back(std::move(one));
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

/// What the last scan noted of larger folders.
void lookInReadings(const std::vector<FolderReading>& readings, Best& best)
{
    if (readings.empty())
        return;
    for (const FolderSize& folder : readings.back().folders) {
        if (best.take(folder.path))
            best.found().measured.push_back({folder.path, folder.bytes, {}});
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

/// Several findings may list a path: one speaks for it.
void tidy(Found& found)
{
    std::ranges::stable_sort(found.hits, std::greater{}, [](const Hit& hit) { return weightOf(hit); });
    std::unordered_set<std::string_view> paths;
    std::erase_if(found.hits, [&](const Hit& hit) { return !paths.insert(hit.entry->path).second; });
    // The walk of the home folder knows sizes, the breakdown what they count for.
    std::map<std::string_view, OrlenCategory> categories;
    for (const Measured& each : found.measured) {
        if (each.category)
            categories.emplace(each.path, *each.category);
    }
    for (Measured& each : found.measured) {
        if (const auto known = categories.find(each.path); known != categories.end())
            each.category = known->second;
    }
    std::erase_if(found.measured, [&](const Measured& each) { return !paths.insert(each.path).second; });
    std::ranges::stable_sort(found.hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    std::ranges::stable_sort(found.measured, std::greater{},
                             [](const Measured& each) { return std::pair(each.isOwn, each.bytes); });
}

Found bestFit(const AskContext& context, std::string_view name, const std::vector<FindingKind>& kinds,
              Fit least)
{
    Best best(name, least);
    lookInFindings(context, kinds, best);
    if (kinds.empty()) {
        lookInHome(context, name, best);
        lookInBreakdown(context.breakdown, best);
        lookInReadings(context.folders, best);
        lookInHistory(context.history, best);
    }
    tidy(best.found());
    return std::move(best.found());
}

} // namespace

int weightOf(Rating rating)
{
    return rating == Rating::keep ? 2 : rating == Rating::safe ? 1 : 0;
}

int weightOf(const Hit& hit)
{
    return weightOf(hit.finding->effectiveRating(*hit.entry));
}

Found findNamed(const AskContext& context, std::string_view name, const std::vector<FindingKind>& kinds)
{
    for (const Fit least : {Fit::folder, Fit::part}) {
        Found found = bestFit(context, name, kinds, least);
        if (found.fit != Fit::none)
            return found;
    }
    return bestFit(context, name, kinds, Fit::mistyped);
}

Found findTrashed(const AskContext& context, std::string_view name)
{
    Found found;
    // Not by the folders around it: those are the same for all that the Trash holds.
    for (const Fit least : {Fit::words, Fit::part, Fit::mistyped}) {
        Best best(name, least);
        lookInHistory(context.history, best);
        if (found.trashed.empty() && best.found().fit != Fit::folder)
            found.trashed = std::move(best.found().trashed);
        Found inTrash = bestFit(context, name, {FindingKind::trash}, least);
        if (found.hits.empty() && inTrash.fit != Fit::folder)
            found.hits = std::move(inTrash.hits);
    }
    return found;
}

std::vector<Hit> holdingAll(const AskContext& context, const std::vector<std::string>& words)
{
    std::vector<Hit> hits;
    const std::string& home = Places::current().home;
    std::string text;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            std::string_view path = entry.path;
            if (PathText::isAtOrBelow(path, home))
                path.remove_prefix(home.size());
            lowerInto(text, path);
            if (!entry.notes.empty())
                text += " " + lowered(noteOf(entry).base());
            if (!words.empty() && std::ranges::all_of(words, [&](const std::string& word) {
                    return text.find(word) != std::string::npos;
                }))
                hits.push_back({&finding, &entry});
        }
    }
    hits = eachOnce(context, std::move(hits));
    std::ranges::stable_sort(hits, std::greater{}, [](const Hit& hit) { return hit.entry->size; });
    return hits;
}

std::string folderHolding(const AskContext& context, const std::string& word)
{
    if (context.home == nullptr)
        return {};
    const HomeFiles& home = *context.home;
    const std::string lower = lowered(word);
    std::optional<HomeFiles::Number> best;
    for (HomeFiles::Number each = 1; each < home.folderCount(); ++each) {
        const HomeFiles::Folder folder = home.folder(each);
        if (folder.isOwn && (!best || folder.bytes > home.folder(*best).bytes) &&
            holdsWord(lowered(folder.name), lower))
            best = each;
    }
    return best ? home.folderPath(*best) : std::string();
}

std::string folderNamed(const AskContext& context, const std::string& text)
{
    if (std::string path = pathIn(text); !path.empty())
        return path;
    if (context.home != nullptr) {
        const std::shared_ptr<const HomeNames> names = context.names->of(context.home);
        const std::string lower = lowered(text);
        if (const auto item = names->at(lower); item && item->isFolder)
            return names->pathOf(*item);
        std::vector<HomeNames::Item> items = names->named(lower);
        std::erase_if(items, [](const HomeNames::Item& item) { return !item.isFolder; });
        const auto best = std::ranges::max_element(
            items, {}, [&](const HomeNames::Item& item) { return names->isOwn(item); });
        if (best != items.end())
            return names->pathOf(*best);
    }
    const Found found = findNamed(context, text);
    return found.fit == Fit::whole && !found.measured.empty() ? found.measured.front().path : std::string();
}

std::vector<Hit> eachOnce(const AskContext& context, std::vector<Hit> hits)
{
    const auto overlaps = context.names->overlapsOf(context.findings);
    const auto isShared = [&](const Hit& hit) {
        return overlaps->isShared(context.findings, *hit.finding, *hit.entry);
    };
    std::unordered_map<std::string_view, Hit> speakers;
    for (const Hit& hit : hits) {
        if (!isShared(hit))
            continue;
        const auto [known, isNew] = speakers.try_emplace(hit.entry->path, hit);
        if (!isNew && weightOf(hit) > weightOf(known->second))
            known->second = hit;
    }
    std::erase_if(hits, [&](const Hit& hit) {
        return isShared(hit) && speakers.at(hit.entry->path).finding != hit.finding;
    });
    return hits;
}

bool isWordOfName(const AskContext& context, std::string_view word)
{
    const auto has = [&](std::string_view path) {
        return holdsWord(lowered(PathText::lastComponent(path)), word);
    };
    const auto isOwnName = [&] {
        const std::shared_ptr<const HomeNames> names = context.names->of(context.home);
        return std::ranges::any_of(names->named(word),
                                   [&](const HomeNames::Item& item) { return names->isOwn(item); });
    };
    return context.names->of(context.findings)->hasWord(word) || (context.home != nullptr && isOwnName()) ||
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

#include "app/FindingLists.h"

#include "app/AppTexts.h"
#include "model/PathSelection.h"
#include "model/Rater.h"
#include "platform/text/PathText.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <unordered_map>
#include <utility>

namespace orlen::FindingLists {

namespace {

template <typename Wanted>
std::set<std::string> safeIn(const std::vector<Finding>& findings, Wanted isWanted)
{
    std::set<std::string> paths;
    for (const Finding& finding : findings) {
        if (!finding.cleanable || !isWanted(finding))
            continue;
        for (const FileEntry& entry : finding.items) {
            if (finding.effectiveRating(entry) == Rating::safe)
                paths.insert(entry.path);
        }
    }
    // Moving a folder would also move entries that need a review first.
    PathSelection::dropOpenFolders(paths, PathSelection::listedIn(findings));
    return paths;
}

} // namespace

bool comesBefore(const Finding& a, const Finding& b)
{
    const std::pair left(a.safeSize(), a.totalSize());
    const std::pair right(b.safeSize(), b.totalSize());
    return left > right;
}

std::vector<const FileEntry*> selectedIn(const Finding& finding, const std::set<std::string>& selection)
{
    std::vector<const FileEntry*> entries;
    for (const FileEntry& entry : finding.items) {
        if (selection.contains(entry.path))
            entries.push_back(&entry);
    }
    return entries;
}

std::set<std::string> safePaths(const std::vector<Finding>& findings)
{
    return safeIn(findings, [](const Finding&) { return true; });
}

std::set<std::string> proposed(const std::vector<Finding>& findings)
{
    return safeIn(findings, [](const Finding& finding) { return finding.rating == Rating::safe; });
}

std::set<std::string> tickable(const std::vector<Finding>& findings, std::span<const std::string> paths)
{
    std::set<std::string> ticked;
    std::set<std::string> refused;
    const std::set<std::string_view> wanted(paths.begin(), paths.end());
    for (const Finding& finding : findings) {
        for (const FileEntry& entry : finding.items) {
            const Rating rating = finding.effectiveRating(entry);
            if (!finding.cleanable || entry.isTickedAlone || rating == Rating::keep)
                refused.insert(entry.path);
            else if (wanted.contains(entry.path))
                ticked.insert(entry.path);
        }
    }
    const PathTree listed = PathSelection::listedIn(findings);
    PathSelection::addInside(ticked, listed);
    std::erase_if(ticked, [&](const std::string& path) { return refused.contains(path); });
    PathSelection::dropOpenFolders(ticked, listed);
    return ticked;
}

bool isIn(const std::set<std::string>& paths, std::string_view path)
{
    for (; path.size() > 1; path = PathText::parent(path)) {
        if (paths.contains(std::string(path)))
            return true;
    }
    return false;
}

std::vector<Finding> findingOf(FindingKind kind, std::vector<FileEntry> entries)
{
    if (entries.empty())
        return {};
    // The entries would be noted on a second time.
    std::vector<Finding> finding = Rater::rate({Finding(kind, {})});
    finding.front().items = Finding(kind, std::move(entries)).items;
    return finding;
}

void noteKept(std::vector<Finding>& findings, const std::vector<const Finding*>& all)
{
    std::unordered_map<std::string, Text> kept;
    for (const Finding* finding : all) {
        const bool isPhotos = finding->kind == FindingKind::photoDuplicates;
        for (const FileEntry& entry : finding->items) {
            if (entry.kept)
                kept.try_emplace(entry.kept->path,
                                 isPhotos ? AppTexts::kKeptOfSimilar : AppTexts::kKeptOfIdentical);
        }
    }
    const auto isNote = [](const Message& note) {
        return note.text == AppTexts::kKeptOfIdentical || note.text == AppTexts::kKeptOfSimilar;
    };
    for (Finding& finding : findings) {
        for (FileEntry& entry : finding.items) {
            std::erase_if(entry.notes, isNote);
            if (const auto found = kept.find(entry.path); found != kept.end())
                addNote(entry, found->second);
        }
    }
}

void giveBack(std::vector<Finding>& findings, std::vector<Finding> taken)
{
    for (Finding& finding : taken) {
        const auto same = std::ranges::find(findings, finding.kind, &Finding::kind);
        if (same == findings.end()) {
            findings.push_back(std::move(finding));
            continue;
        }
        std::ranges::move(finding.items, std::back_inserter(same->items));
        std::ranges::stable_sort(same->items, std::greater(), &FileEntry::size);
    }
}

} // namespace orlen::FindingLists

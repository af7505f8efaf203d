#include "model/PathSelection.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace orlen::PathSelection {

namespace {

using Paths = std::vector<std::string_view>;

void append(Paths& paths, const std::vector<FileEntry>& entries)
{
    for (const FileEntry& entry : entries)
        paths.push_back(entry.path);
}

/// Whether an entry goes along with the one that was kept last in path order, or is the same one.
bool goesAlong(const FileEntry& entry, const FileEntry& kept)
{
    return entry.path == kept.path || PathTree::isInside(entry.path, kept.path);
}

} // namespace

PathTree listedIn(const std::vector<Finding>& findings)
{
    Paths paths;
    for (const Finding& finding : findings) {
        if (finding.cleanable)
            append(paths, finding.items);
    }
    return PathTree(paths);
}

PathTree listedIn(const CleanPlan& plan)
{
    Paths paths;
    for (const PlanSection& section : plan.sections)
        append(paths, section.entries);
    return PathTree(paths);
}

void tick(std::set<std::string>& ticked, const PathTree& listed, const std::string& path)
{
    ticked.insert(path);
    const int node = listed.find(path);
    for (int inside = node; node != PathTree::kNone && inside < listed.end(node); ++inside)
        ticked.insert(listed.path(inside));
}

void untick(std::set<std::string>& ticked, const PathTree& listed, const std::string& path)
{
    ticked.erase(path);
    const int node = listed.find(path);
    if (node == PathTree::kNone)
        return;
    for (int inside = node; inside < listed.end(node); ++inside)
        ticked.erase(listed.path(inside));
    for (int folder = listed.holder(node); folder != PathTree::kNone; folder = listed.holder(folder))
        ticked.erase(listed.path(folder));
}

void addInside(std::set<std::string>& ticked, const PathTree& listed)
{
    // What holds a node stands before it.
    for (int node = 0; listed.isNested() && node < listed.size(); ++node) {
        const int folder = listed.holder(node);
        if (folder != PathTree::kNone && ticked.contains(listed.path(folder)))
            ticked.insert(listed.path(node));
    }
}

void dropOpenFolders(std::set<std::string>& ticked, const PathTree& listed)
{
    for (int node = listed.isNested() ? listed.size() - 1 : PathTree::kNone; node >= 0; --node) {
        const int folder = listed.holder(node);
        if (folder != PathTree::kNone && !ticked.contains(listed.path(node)))
            ticked.erase(listed.path(folder));
    }
}

std::vector<FileEntry> outermost(std::vector<FileEntry> entries)
{
    std::stable_sort(entries.begin(), entries.end(), [](const FileEntry& a, const FileEntry& b) {
        return PathTree::comesBefore(a.path, b.path);
    });
    std::vector<FileEntry> kept;
    kept.reserve(entries.size());
    for (FileEntry& entry : entries) {
        if (kept.empty() || !goesAlong(entry, kept.back()))
            kept.push_back(std::move(entry));
    }
    return kept;
}

std::vector<FileEntry> moving(const CleanPlan& plan)
{
    std::vector<FileEntry> entries;
    for (const PlanSection& section : plan.sections)
        entries.insert(entries.end(), section.entries.begin(), section.entries.end());
    return outermost(std::move(entries));
}

Amount amountOf(std::vector<const FileEntry*> entries)
{
    std::ranges::stable_sort(entries, [](const FileEntry* a, const FileEntry* b) {
        return PathTree::comesBefore(a->path, b->path);
    });
    Amount amount;
    const FileEntry* kept = nullptr;
    for (const FileEntry* entry : entries) {
        if (kept != nullptr && goesAlong(*entry, *kept))
            continue;
        kept = entry;
        ++amount.items;
        amount.bytes = checkedAdd(amount.bytes, entry->size);
    }
    return amount;
}

std::int64_t sizeOf(std::vector<const FileEntry*> entries, const PathTree& listed)
{
    if (listed.isNested())
        return amountOf(std::move(entries)).bytes;
    std::int64_t sum = 0;
    for (const FileEntry* entry : entries)
        sum = checkedAdd(sum, entry->size);
    return sum;
}

} // namespace orlen::PathSelection

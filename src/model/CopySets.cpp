#include "model/CopySets.h"

#include "model/Finding.h"
#include "model/KeptSets.h"
#include "model/PathCover.h"

#include <algorithm>
#include <string_view>
#include <unordered_map>

namespace orlen::CopySets {

std::vector<CopySet> of(const std::vector<const Finding*>& findings)
{
    std::vector<CopySet> sets;
    for (const Finding* finding : findings) {
        for (const KeptSet& set : keptSets(finding->items)) {
            if (set.kept.empty())
                continue;
            CopySet& copies = sets.emplace_back(CopySet{*finding->items[set.entries.front()].kept, {}});
            for (const std::size_t number : set.entries)
                copies.copies.push_back(finding->items[number].path);
        }
    }
    return sets;
}

std::vector<CopySet> about(std::vector<CopySet> sets, const std::vector<std::string>& paths)
{
    PathCover covers;
    for (const std::string& path : paths)
        covers.add(path);
    const auto isCovered = [&](std::string_view path) { return !covers.of(path).empty(); };
    std::erase_if(sets, [&](const CopySet& set) {
        return !isCovered(set.kept.path) && std::ranges::none_of(set.copies, isCovered);
    });
    return sets;
}

std::set<std::string> staying(const std::vector<CopySet>& sets, std::span<const FileEntry> entries)
{
    PathCover covers;
    for (const FileEntry& entry : entries)
        covers.add(entry.path);
    std::set<std::string> staying;
    for (const CopySet& set : sets) {
        const std::string_view kept = covers.of(set.kept.path);
        const auto goesToo = [&](std::string_view copy) {
            const std::string_view cover = covers.of(copy);
            return !cover.empty() && cover != kept;
        };
        if (!kept.empty() && std::ranges::any_of(set.copies, goesToo))
            staying.emplace(kept);
    }
    return staying;
}

void tie(std::vector<FileEntry>& entries, const std::vector<CopySet>& sets)
{
    std::unordered_map<std::string_view, const KeptFile*> kept;
    for (const CopySet& set : sets) {
        for (const std::string& copy : set.copies)
            kept.try_emplace(copy, &set.kept);
    }
    for (FileEntry& entry : entries) {
        const auto found = entry.kept ? kept.end() : kept.find(entry.path);
        if (found != kept.end())
            entry.kept = *found->second;
    }
}

} // namespace orlen::CopySets

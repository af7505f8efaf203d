#include "insight/reader/Proposal.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <cstddef>
#include <map>
#include <string_view>
#include <unordered_map>
#include <unordered_set>
#include <utility>

namespace orlen::AskReader {

namespace {

bool mayBeChosen(const AskContext& context, const Finding& finding, const FileEntry& entry)
{
    return finding.cleanable && !entry.isTickedAlone && entry.size > 0 &&
           (!context.protection || context.protection(entry.path) == Protection::none);
}

/// Drops what another finding speaks for.
void dropRatedOtherwise(const AskContext& context, Rating rating, std::vector<Hit>& hits)
{
    const auto overlaps = context.names->overlapsOf(context.findings);
    std::unordered_set<std::string_view> others;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (overlaps->isShared(context.findings, finding, entry) &&
                weightOf(finding.effectiveRating(entry)) > weightOf(rating))
                others.insert(entry.path);
        }
    }
    std::erase_if(hits, [&](const Hit& hit) {
        return overlaps->isShared(context.findings, *hit.finding, *hit.entry) &&
               others.contains(hit.entry->path);
    });
}

/// Drops what is kept of files with copies that are to go: both never go together.
void dropKept(const AskContext& context, std::vector<Hit>& hits)
{
    std::unordered_map<std::string_view, std::string_view> keptOf;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (entry.kept)
                keptOf.try_emplace(entry.path, entry.kept->path);
        }
    }
    const auto overlaps = context.names->overlapsOf(context.findings);
    Paths kept;
    for (const Hit& hit : hits) {
        // Another finding may list the copy, too.
        const bool mayBeCopy =
            hit.entry->kept || overlaps->isShared(context.findings, *hit.finding, *hit.entry);
        const auto copy = mayBeCopy ? keptOf.find(hit.entry->path) : keptOf.end();
        if (copy != keptOf.end())
            kept.insert(copy->second);
    }
    if (!kept.empty())
        std::erase_if(hits, [&](const Hit& hit) { return kept.contains(hit.entry->path); });
}

/// Drops what lies in a folder that is among them: the folder takes it along.
void dropInside(const AskContext& context, std::vector<Hit>& hits)
{
    const auto overlaps = context.names->overlapsOf(context.findings);
    const auto isInside = [&](const Hit& hit) {
        return overlaps->isInside(context.findings, *hit.finding, *hit.entry);
    };
    if (std::ranges::none_of(hits, isInside))
        return;
    std::unordered_set<std::string_view> paths;
    for (const Hit& hit : hits)
        paths.insert(hit.entry->path);
    std::erase_if(hits, [&](const Hit& hit) {
        if (!isInside(hit))
            return false;
        std::string_view above = hit.entry->path;
        for (std::size_t end = above.rfind('/'); end != std::string_view::npos; end = above.rfind('/')) {
            above = above.substr(0, end);
            if (paths.contains(above))
                return true;
        }
        return false;
    });
}

} // namespace

std::vector<Hit> choosable(const AskContext& context, Rating rating, const Exclusions& exclusions,
                           const Paths* among)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (finding.effectiveRating(entry) == rating && mayBeChosen(context, finding, entry) &&
                (among == nullptr || among->contains(entry.path)) &&
                (exclusions.empty() || !exclusions.leaveOut(finding, entry)))
                hits.push_back({&finding, &entry});
        }
    }
    dropRatedOtherwise(context, rating, hits);
    // What several findings list has one size, so it comes to stand side by side; the first finding has it.
    std::ranges::stable_sort(hits, [](const Hit& a, const Hit& b) {
        return a.entry->size != b.entry->size ? a.entry->size > b.entry->size : a.entry->path < b.entry->path;
    });
    hits.erase(std::unique(hits.begin(), hits.end(),
                           [](const Hit& a, const Hit& b) { return a.entry->path == b.entry->path; }),
               hits.end());
    dropKept(context, hits);
    dropInside(context, hits);
    return hits;
}

void dropCopiesOf(const AskContext& context, const std::vector<Hit>& going, std::vector<Hit>& hits)
{
    std::unordered_multimap<std::string_view, std::string_view> copiesOf;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (entry.kept)
                copiesOf.emplace(entry.kept->path, entry.path);
        }
    }
    if (copiesOf.empty())
        return;
    Paths copies;
    for (const Hit& hit : going) {
        const auto [first, last] = copiesOf.equal_range(hit.entry->path);
        for (auto each = first; each != last; ++each)
            copies.insert(each->second);
    }
    if (!copies.empty())
        std::erase_if(hits, [&](const Hit& hit) { return copies.contains(hit.entry->path); });
}

std::vector<Hit> reaching(std::vector<Hit> hits, std::int64_t wanted)
{
    std::int64_t bytes = 0;
    std::size_t count = 0;
    while (count < hits.size() && bytes < wanted)
        bytes = checkedAdd(bytes, hits[count++].entry->size);
    if (count == 0 || bytes < wanted)
        return hits;
    // The last one need not be larger than what is still missing.
    const std::int64_t missing = wanted - (bytes - hits[count - 1].entry->size);
    std::size_t least = count - 1;
    while (least + 1 < hits.size() && hits[least + 1].entry->size >= missing)
        ++least;
    hits[count - 1] = hits[least];
    hits.resize(count);
    return hits;
}

std::int64_t bytesOf(const std::vector<Hit>& hits)
{
    std::int64_t bytes = 0;
    for (const Hit& hit : hits)
        bytes = checkedAdd(bytes, hit.entry->size);
    return bytes;
}

std::vector<FindingPart> partsOf(const std::vector<Hit>& hits)
{
    std::map<const Finding*, std::int64_t> sizes;
    for (const Hit& hit : hits) {
        std::int64_t& bytes = sizes[hit.finding];
        bytes = checkedAdd(bytes, hit.entry->size);
    }
    std::vector<FindingPart> parts;
    parts.reserve(sizes.size());
    for (const auto& [finding, bytes] : sizes)
        parts.push_back({finding, bytes});
    std::ranges::sort(parts, [](const FindingPart& a, const FindingPart& b) {
        return std::pair(-a.bytes, a.finding->kind) < std::pair(-b.bytes, b.finding->kind);
    });
    return parts;
}

void appendPaths(std::vector<std::string>& paths, const std::vector<Hit>& hits)
{
    paths.reserve(paths.size() + hits.size());
    for (const Hit& hit : hits)
        paths.push_back(hit.entry->path);
}

} // namespace orlen::AskReader

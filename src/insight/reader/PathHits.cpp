#include "insight/reader/PathHits.h"

#include "platform/text/PathText.h"

#include <cstddef>
#include <unordered_map>
#include <utility>

namespace orlen::AskReader {

namespace {

bool isBetter(const Hit& hit, const Hit& known)
{
    if (known.finding == nullptr || hit.entry->path.size() != known.entry->path.size())
        return known.finding == nullptr || hit.entry->path.size() > known.entry->path.size();
    return weightOf(hit) > weightOf(known);
}

} // namespace

std::vector<Hit> hitsAround(std::span<const std::string> paths, const AskContext& context)
{
    // A scan lists many entries, and few of them are as long as one of the folders in question.
    std::unordered_map<std::string_view, std::vector<std::size_t>> around;
    std::vector<bool> lengths;
    for (std::size_t i = 0; i < paths.size(); ++i) {
        for (std::string_view at = paths[i]; at.size() > 1; at = PathText::parent(at)) {
            around[at].push_back(i);
            if (lengths.size() <= at.size())
                lengths.resize(at.size() + 1);
            lengths[at.size()] = true;
        }
    }
    std::vector<Hit> hits(paths.size());
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (entry.path.size() >= lengths.size() || !lengths[entry.path.size()])
                continue;
            const auto found = around.find(entry.path);
            if (found == around.end())
                continue;
            for (const std::size_t i : found->second) {
                if (const Hit hit{&finding, &entry}; isBetter(hit, hits[i]))
                    hits[i] = hit;
            }
        }
    }
    return hits;
}

std::vector<Hit> hitsBelow(std::string_view folder, const AskContext& context)
{
    std::vector<Hit> hits;
    for (const Finding& finding : context.findings) {
        for (const FileEntry& entry : finding.items) {
            if (entry.path.size() > folder.size() && PathText::isAtOrBelow(entry.path, folder))
                hits.push_back({&finding, &entry});
        }
    }
    return eachOnce(context, std::move(hits));
}

} // namespace orlen::AskReader

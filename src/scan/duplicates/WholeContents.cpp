#include "scan/duplicates/WholeContents.h"

#include <algorithm>
#include <cstdint>
#include <iterator>
#include <map>
#include <tuple>
#include <utility>

namespace orlen::WholeContents {

namespace {

using Suspects = std::vector<Suspect>;
using Reader = ReadingThreads::Reader;

/// What is compared at once.
struct Portion {
    std::span<Suspect> files;
    bool isWholeGroup = true;
    std::vector<Suspects> identical; ///< result
};

std::vector<Portion> portionsOf(std::span<const std::span<Suspect>> groups)
{
    std::vector<Portion> portions;
    for (const std::span<Suspect> group : groups) {
        for (auto rest = group; !rest.empty();) {
            const std::size_t files = std::min(rest.size(), ContentComparer::kMostFiles);
            portions.push_back({rest.first(files), files == group.size(), {}});
            rest = rest.subspan(files);
        }
    }
    // Longest first: one started last would keep one thread busy and the others waiting.
    std::ranges::stable_sort(portions, std::ranges::greater(), [](const Portion& portion) {
        return portion.files.front().seen.length * static_cast<std::int64_t>(portion.files.size());
    });
    return portions;
}

void compare(Reader& reader, Portion& portion)
{
    std::vector<bool> isPlaced(portion.files.size());
    for (const ContentComparer::Same& same : reader.comparer.identical(portion.files)) {
        Suspects& alike = portion.identical.emplace_back();
        for (const std::size_t index : same) {
            alike.push_back(portion.files[index]);
            isPlaced[index] = true;
        }
    }
    if (portion.isWholeGroup)
        return;
    // A file unique here may have a duplicate in another portion.
    for (std::size_t i = 0; i < isPlaced.size(); ++i) {
        if (!isPlaced[i])
            portion.identical.push_back({portion.files[i]});
    }
}

/// Computes the full hash of the first file; if it can no longer be read it is dropped and the next takes its
/// place.
void hashFirst(Reader& reader, Suspects& alike)
{
    while (!alike.empty()) {
        if (const auto digest = reader.hasher.full(alike.front())) {
            alike.front().digest = *digest;
            return;
        }
        alike.erase(alike.begin());
    }
}

/// Joins lists of identical files that have the same content.
std::vector<Suspects> join(ReadingThreads& threads, std::vector<Suspects> lists)
{
    threads.forEach(lists.size(), [&](Reader& reader, std::size_t i) { hashFirst(reader, lists[i]); });
    std::map<std::tuple<std::int64_t, Digest>, Suspects> joined;
    for (const Suspects& alike : lists) {
        if (alike.empty())
            continue;
        Suspects& all = joined[{alike.front().cand->size, alike.front().digest}];
        all.insert(all.end(), alike.begin(), alike.end());
    }
    std::vector<Suspects> sets;
    for (auto& [key, alike] : joined) {
        if (alike.size() > 1)
            sets.push_back(std::move(alike));
    }
    return sets;
}

} // namespace

std::vector<Suspects> identical(ReadingThreads& threads, std::span<const std::span<Suspect>> groups)
{
    std::vector<Portion> portions = portionsOf(groups);
    threads.forEach(portions.size(), [&](Reader& reader, std::size_t i) { compare(reader, portions[i]); });
    std::vector<Suspects> toJoin;
    std::vector<Suspects> sets;
    for (Portion& portion : portions)
        std::ranges::move(portion.identical, std::back_inserter(portion.isWholeGroup ? sets : toJoin));
    std::ranges::move(join(threads, std::move(toJoin)), std::back_inserter(sets));
    return sets;
}

} // namespace orlen::WholeContents

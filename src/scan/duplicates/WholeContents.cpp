#include "scan/duplicates/WholeContents.h"

#include "platform/values/CheckedSum.h"

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

/// Of all its files up to this position.
std::int64_t bytesUpTo(const Portion& portion, std::int64_t position)
{
    return cappedBytes(static_cast<std::uint64_t>(position), portion.files.size());
}

std::int64_t bytes(const Portion& portion)
{
    return bytesUpTo(portion, portion.files.front().seen.length);
}

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
    std::ranges::stable_sort(portions, std::ranges::greater(), bytes);
    return portions;
}

void compare(Reader& reader, ScanProgress& progress, Portion& portion)
{
    std::int64_t counted = 0;
    const auto count = [&](std::int64_t compared) {
        const std::int64_t now = bytesUpTo(portion, compared);
        progress.advance(StepKind::duplicates, now - std::exchange(counted, now));
    };
    std::vector<bool> isPlaced(portion.files.size());
    const auto identical = reader.comparer.identical(portion.files, count);
    count(portion.files.front().seen.length);
    for (const ContentComparer::Same& same : identical) {
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
        Suspects& all = joined[{alike.front().seen.length, alike.front().digest}];
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

std::vector<Suspects> identical(ReadingThreads& threads, ScanProgress& progress,
                                std::span<const std::span<Suspect>> groups)
{
    std::vector<Portion> portions = portionsOf(groups);
    StepAmount amount;
    for (const Portion& portion : portions)
        amount.all = cappedAdd(amount.all, bytes(portion));
    progress.expect(StepKind::duplicates, amount);
    threads.forEach(portions.size(),
                    [&](Reader& reader, std::size_t i) { compare(reader, progress, portions[i]); });
    std::vector<Suspects> toJoin;
    std::vector<Suspects> sets;
    for (Portion& portion : portions)
        std::ranges::move(portion.identical, std::back_inserter(portion.isWholeGroup ? sets : toJoin));
    std::ranges::move(join(threads, std::move(toJoin)), std::back_inserter(sets));
    return sets;
}

} // namespace orlen::WholeContents

#include "model/Finding.h"

#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <functional>
#include <utility>

namespace orlen {

Finding::Finding(FindingKind kindOfEntries, std::vector<FileEntry> entries)
    : kind(kindOfEntries), title(meta(kindOfEntries).title), explanation(meta(kindOfEntries).explanation),
      symbol(meta(kindOfEntries).symbol), category(meta(kindOfEntries).category), items(std::move(entries)),
      cleanable(kindOfEntries != FindingKind::trash)
{
    std::ranges::stable_sort(items, std::greater{}, &FileEntry::size);
}

std::int64_t Finding::safeSize() const
{
    std::int64_t sum = 0;
    if (!cleanable)
        return sum;
    for (const FileEntry& entry : items) {
        if (effectiveRating(entry) == Rating::safe)
            sum = checkedAdd(sum, entry.size);
    }
    return sum;
}

std::int64_t Finding::totalSize() const
{
    return sizeOf(items);
}

bool Finding::isNotable() const
{
    constexpr std::int64_t kSmallest = 1'000'000;
    return !isFromPlaces(kind) || totalSize() >= kSmallest;
}

bool isTickedAlong(const FileEntry& entry, Rating findingRating)
{
    return !entry.isTickedAlone && entry.rating.value_or(findingRating) != Rating::keep;
}

std::int64_t sizeOf(const std::vector<FileEntry>& entries)
{
    std::int64_t sum = 0;
    for (const FileEntry& entry : entries)
        sum = checkedAdd(sum, entry.size);
    return sum;
}

} // namespace orlen

#include "scan/StorageBreakdown.h"

#include "platform/files/Places.h"
#include "platform/files/Volume.h"
#include "platform/values/CheckedSum.h"
#include "scan/BreakdownFolders.h"
#include "scan/CategorySums.h"
#include "scan/FolderTotals.h"
#include "scan/tree/CurrentMounts.h"

#include <algorithm>

namespace orlen {

StorageBreakdown::Space StorageBreakdown::volume()
{
    const Places& places = Places::current();
    // The home folder's file system is the one a clean-up frees, start-up volume or not.
    auto space = volumeSpace(places.isHomeUsable ? places.resolvedHome : places.volume);
    if (!space.ok())
        return {};
    return {space.value().total, space.value().free};
}

StorageBreakdown StorageBreakdown::compute(const std::stop_token& stop)
{
    FolderTotals totals;
    return compute(stop, totals);
}

StorageBreakdown StorageBreakdown::compute(const std::stop_token& stop, FolderTotals& totals)
{
    const auto mounts = CurrentMounts::table();
    const auto folders = BreakdownFolders::find(Places::current(), *mounts);
    PathMarks marks;
    // A listed folder inside another counts for its own category only.
    for (const BreakdownFolders::Folder& folder : folders)
        marks.mark(folder.path, PathMarks::kSkip);

    StorageBreakdown breakdown;
    breakdown.folders = CategorySums::measure(folders, marks, *mounts, stop, totals);
    const Space space = volume();
    breakdown.total = space.total;
    breakdown.free = space.free;
    for (const OrlenCategory category : kAllCategories)
        breakdown.cats[category] = 0;
    std::int64_t measured = 0;
    for (const CategoryFolder& folder : breakdown.folders) {
        std::int64_t& sum = breakdown.cats[folder.category];
        sum = cappedAdd(sum, folder.bytes);
        measured = cappedAdd(measured, folder.bytes);
    }
    const std::int64_t used = checkedSubtract(space.total, space.free);
    breakdown.cats[OrlenCategory::system] = std::max<std::int64_t>(0, checkedSubtract(used, measured));
    return breakdown;
}

} // namespace orlen

#include "scan/StorageBreakdown.h"

#include "platform/files/Places.h"
#include "platform/files/Volume.h"
#include "platform/values/CheckedSum.h"
#include "scan/BreakdownFolders.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeScan.h"
#include "scan/tree/TreeSum.h"

#include <algorithm>
#include <array>
#include <atomic>
#include <mutex>
#include <unordered_set>

namespace orlen {

namespace {

/// Adds up the files of each category; hard links count once per category.
class CategorySums : public TreeVisitor {
public:
    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view /*name*/,
                                       std::uint32_t /*marks*/) override
    {
        return parent.tag();
    }

    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        Category& category = m_categories[folder.tag()];
        std::int64_t bytes = 0;
        for (const TreeFile& file : files) {
            if (file.status.links < 2 || category.isNew(file.status.identity))
                bytes = cappedAdd(bytes, file.status.allocatedBytes);
        }
        addTo(category.bytes, bytes);
    }

    [[nodiscard]] std::int64_t bytes(OrlenCategory category) const
    {
        return m_categories[static_cast<std::size_t>(category)].bytes.load();
    }

private:
    struct Category {
        std::atomic<std::int64_t> bytes{0};
        std::mutex lock;
        std::unordered_set<FileIdentity, FileIdentityHash> linked;

        bool isNew(const FileIdentity& file)
        {
            const std::lock_guard guard(lock);
            return linked.insert(file).second;
        }
    };

    std::array<Category, kAllCategories.size()> m_categories;
};

} // namespace

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
    const auto mounts = CurrentMounts::table();
    PathMarks marks;
    std::vector<TreeRoot> roots;
    for (BreakdownFolders::Folder& folder : BreakdownFolders::find(Places::current(), *mounts)) {
        // A listed folder inside another counts for its own category only.
        marks.mark(folder.path, PathMarks::kSkip);
        roots.push_back({std::move(folder.path), static_cast<std::uint32_t>(folder.category)});
    }
    TreeScanOptions options;
    options.crossing = Crossing::sameFileSystem;
    options.priority = DiskWorkers::Priority::utility;
    options.marks = &marks;
    CategorySums sums;
    scanTrees(roots, sums, *mounts, options, stop);

    StorageBreakdown breakdown;
    const Space space = volume();
    breakdown.total = space.total;
    breakdown.free = space.free;
    std::int64_t measured = 0;
    for (const OrlenCategory category : kAllCategories) {
        breakdown.cats[category] = sums.bytes(category);
        measured = checkedAdd(measured, sums.bytes(category));
    }
    const std::int64_t used = checkedSubtract(space.total, space.free);
    breakdown.cats[OrlenCategory::system] = std::max<std::int64_t>(0, checkedSubtract(used, measured));
    return breakdown;
}

} // namespace orlen

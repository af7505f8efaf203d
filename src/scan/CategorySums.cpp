#include "scan/CategorySums.h"

#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <iterator>
#include <utility>

namespace orlen {

namespace {

constexpr std::size_t kMostItems = 5;

/// Keeps the largest items, in order.
void offer(std::vector<CategoryFolder::Item>& largest, CategoryFolder::Item item)
{
    const auto isLarger = [](const CategoryFolder::Item& a, const CategoryFolder::Item& b) {
        return a.bytes != b.bytes ? a.bytes > b.bytes : a.name < b.name;
    };
    if (item.bytes < 1 || (largest.size() == kMostItems && !isLarger(item, largest.back())) ||
        !PathText::isValidUtf8(item.name))
        return;
    largest.insert(std::upper_bound(largest.begin(), largest.end(), item, isLarger), std::move(item));
    if (largest.size() > kMostItems)
        largest.pop_back();
}

/// The measured folder that holds this path: the innermost, since they may lie in each other.
CategoryFolder* holderOf(std::vector<CategoryFolder>& folders, std::string_view path)
{
    CategoryFolder* holder = nullptr;
    for (CategoryFolder& folder : folders) {
        if (PathText::isAtOrBelow(path, folder.path) &&
            (holder == nullptr || folder.path.size() > holder->path.size()))
            holder = &folder;
    }
    return holder;
}

} // namespace

std::optional<std::uint32_t> CategorySums::enter(const TreeFolder& parent, std::string_view name,
                                                 std::uint32_t /*marks*/)
{
    return m_totals.child(parent.tag(), name);
}

/// The file's size; 0 for another name of a file that was counted already.
std::int64_t CategorySums::newBytes(const TreeFile& file, OrlenCategory category)
{
    if (file.status.links > 1) {
        Linked& linked = m_linked[static_cast<std::size_t>(category)];
        const std::lock_guard guard(linked.lock);
        if (!linked.files.insert(file.status.identity).second)
            return 0;
    }
    return file.status.allocatedBytes;
}

void CategorySums::files(const TreeFolder& folder, std::span<const TreeFile> files)
{
    const bool isRoot = folder.parent() == nullptr;
    const std::size_t root = m_totals.rootOf(folder.tag());
    std::int64_t sum = 0;
    std::vector<Item> largest;
    for (const TreeFile& file : files) {
        const std::int64_t bytes = newBytes(file, m_folders[root].category);
        sum = cappedAdd(sum, bytes);
        if (isRoot)
            offer(largest, {file.name, bytes, false});
    }
    m_totals.add(folder.tag(), sum);
    if (largest.empty())
        return;
    const std::lock_guard guard(m_lock);
    for (Item& item : largest)
        offer(m_files[root], std::move(item));
}

std::vector<CategoryFolder> CategorySums::take()
{
    const std::vector<std::int64_t> bytes = m_totals.rootBytes();
    std::vector<CategoryFolder> measured(m_folders.size());
    for (std::size_t root = 0; root < m_folders.size(); ++root) {
        measured[root].category = m_folders[root].category;
        measured[root].path = Places::current().normalized(m_folders[root].path);
        measured[root].bytes = bytes[root];
        measured[root].largest = std::move(m_files[root]);
    }
    for (FolderTotals::Item& item : m_totals.items())
        offer(measured[item.root].largest, {std::move(item.name), item.bytes});
    return measured;
}

std::vector<CategoryFolder> CategorySums::measure(const std::vector<BreakdownFolders::Folder>& folders,
                                                  const PathMarks& marks, const MountTable& mounts,
                                                  const std::stop_token& stop, FolderTotals& totals)
{
    std::vector<TreeRoot> roots;
    roots.reserve(folders.size());
    for (const BreakdownFolders::Folder& folder : folders)
        roots.push_back({folder.path, totals.addRoot(Places::current().normalized(folder.path))});
    UnreadableFolders unreadable;
    TreeScanOptions options;
    options.crossing = Crossing::sameFileSystem;
    options.priority = DiskWorkers::Priority::utility;
    options.marks = &marks;
    options.unreadable = &unreadable;
    CategorySums sums(folders, totals);
    scanTrees(roots, sums, mounts, options, stop);

    std::vector<CategoryFolder> measured = sums.take();
    for (const std::string& path : unreadable.paths()) {
        if (CategoryFolder* holder = holderOf(measured, Places::current().normalized(path)))
            holder->isComplete = false;
    }
    std::erase_if(measured, [](const CategoryFolder& folder) { return folder.bytes < 1; });
    std::stable_sort(measured.begin(), measured.end(),
                     [](const CategoryFolder& a, const CategoryFolder& b) { return a.bytes > b.bytes; });
    return measured;
}

} // namespace orlen

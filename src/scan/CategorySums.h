#pragma once

#include "scan/BreakdownFolders.h"
#include "scan/CategoryFolder.h"
#include "scan/FolderTotals.h"
#include "scan/UnreadableFolders.h"
#include "scan/tree/TreeScan.h"

#include <array>
#include <map>
#include <mutex>
#include <stop_token>
#include <string>
#include <unordered_set>
#include <vector>

namespace orlen {

class MountTable;

/// Measures the folders of the storage categories in one scan: the sum of each, and of each item directly in
/// it. A file with several names counts once per category, in the folder where it was met first.
class CategorySums : public TreeVisitor {
public:
    /// Measures the folders, which are the roots of the scan, and skips whatever is marked. Largest first;
    /// those that take no space are left out. `totals`, which must be new, receives the folders as its roots.
    /// Blocks on the disk; a stopped measurement returns what it has.
    [[nodiscard]] static std::vector<CategoryFolder>
    measure(const std::vector<BreakdownFolders::Folder>& folders, const PathMarks& marks,
            const MountTable& mounts, const std::stop_token& stop, FolderTotals& totals);

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t marks) override;
    void files(const TreeFolder& folder, std::span<const TreeFile> files) override;

private:
    using Item = CategoryFolder::Item;

    struct Linked {
        std::mutex lock;
        std::unordered_set<FileIdentity, FileIdentityHash> files;
    };

    CategorySums(const std::vector<BreakdownFolders::Folder>& folders, FolderTotals& totals)
        : m_folders(folders), m_totals(totals), m_files(folders.size())
    {
    }
    [[nodiscard]] std::int64_t newBytes(const TreeFile& file, OrlenCategory category);
    [[nodiscard]] std::vector<CategoryFolder> take();

    const std::vector<BreakdownFolders::Folder>& m_folders;
    FolderTotals& m_totals;
    std::array<Linked, kAllCategories.size()> m_linked;

    std::mutex m_lock;                      ///< guards what follows
    std::vector<std::vector<Item>> m_files; ///< the largest directly in each root
};

} // namespace orlen

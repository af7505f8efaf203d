#include "scan/tree/TreeMeasure.h"

#include "platform/values/CheckedSum.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeScan.h"

namespace orlen {

namespace {

class Measure : public TreeVisitor {
public:
    explicit Measure(std::size_t roots) : m_sums(roots) {}

    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view /*name*/,
                                       std::uint32_t /*marks*/) override
    {
        return parent.tag();
    }

    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        std::int64_t bytes = 0;
        for (const TreeFile& file : files)
            bytes = cappedAdd(bytes, file.status.allocatedBytes);
        addTo(m_sums[folder.tag()], bytes);
    }

    [[nodiscard]] std::int64_t sum(std::size_t root) const { return m_sums[root].load(); }

private:
    std::vector<std::atomic<std::int64_t>> m_sums;
};

} // namespace

void addTo(std::atomic<std::int64_t>& sum, std::int64_t bytes)
{
    std::int64_t before = sum.load();
    while (!sum.compare_exchange_weak(before, cappedAdd(before, bytes))) {
    }
}

std::vector<std::int64_t> measureTrees(std::span<const std::string> paths, const std::stop_token& stop,
                                       DiskWorkers::Priority priority, UnreadableFolders* unreadable)
{
    std::vector<std::int64_t> sizes(paths.size());
    std::vector<TreeRoot> folders;
    for (std::size_t i = 0; i < paths.size() && !stop.stop_requested(); ++i) {
        const auto status = statusOf(paths[i]);
        if (!status.ok())
            continue;
        if (status.value().type == FileType::folder)
            folders.push_back({paths[i], static_cast<std::uint32_t>(i)});
        else if (status.value().type == FileType::regular)
            sizes[i] = status.value().allocatedBytes;
    }
    Measure measure(paths.size());
    TreeScanOptions options;
    options.priority = priority;
    options.unreadable = unreadable;
    scanTrees(folders, measure, *CurrentMounts::table(), options, stop);
    for (const TreeRoot& folder : folders)
        sizes[folder.tag] = measure.sum(folder.tag);
    return sizes;
}

} // namespace orlen

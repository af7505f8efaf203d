#include "scan/tree/TreeMeasure.h"

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
        m_sums[folder.tag()].add(files);
    }

    [[nodiscard]] TreeSize size(std::size_t root) const { return m_sums[root].size(); }

private:
    std::vector<TreeSum> m_sums;
};

TreeSize sizeOf(const FileStatus& file)
{
    return {file.allocatedBytes, file.links > 1 ? 0 : file.allocatedBytes};
}

} // namespace

std::vector<TreeSize> measureTrees(std::span<const std::string> paths, const std::stop_token& stop,
                                   DiskWorkers::Priority priority, UnreadableFolders* unreadable)
{
    std::vector<TreeSize> sizes(paths.size());
    std::vector<TreeRoot> folders;
    for (std::size_t i = 0; i < paths.size() && !stop.stop_requested(); ++i) {
        const auto status = statusOf(paths[i]);
        if (!status.ok())
            continue;
        if (status.value().type == FileType::folder)
            folders.push_back({paths[i], static_cast<std::uint32_t>(i)});
        else if (status.value().type == FileType::regular)
            sizes[i] = sizeOf(status.value());
    }
    Measure measure(paths.size());
    TreeScanOptions options;
    options.priority = priority;
    options.unreadable = unreadable;
    scanTrees(folders, measure, *CurrentMounts::table(), options, stop);
    for (const TreeRoot& folder : folders)
        sizes[folder.tag] = measure.size(folder.tag);
    return sizes;
}

} // namespace orlen

#include "tools/DiskMap.h"

#include "platform/files/Folder.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeScan.h"

#include <algorithm>
#include <iterator>
#include <mutex>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orlen::DiskMap {

namespace {

constexpr std::size_t kMostNodes = 60;

/// Adds up what is below each child of the one root. The whole map is a single scan, so that a child that is
/// a mounted server is known and skipped untouched, and a hundred thousand children cost no more than their
/// listing.
class ChildSums : public TreeVisitor {
public:
    /// A child folder's tag is the index of its node; all folders below inherit it.
    std::optional<std::uint32_t> enter(const TreeFolder& parent, std::string_view name,
                                       std::uint32_t /*marks*/) override
    {
        if (!isRoot(parent))
            return parent.tag();
        const std::lock_guard guard(m_lock);
        m_nodes.push_back({std::string(name), {}, 0, true, false});
        return static_cast<std::uint32_t>(m_nodes.size() - 1);
    }

    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        if (isRoot(folder)) {
            const std::lock_guard guard(m_lock);
            for (const TreeFile& file : files) {
                m_nodes.push_back({file.name, {}, 0, false, false});
                add(file.status, m_nodes.size() - 1);
            }
            return;
        }
        std::int64_t bytes = 0;
        for (const TreeFile& file : files)
            bytes = cappedAdd(bytes, file.status.links < 2 ? file.status.allocatedBytes : 0);
        const std::lock_guard guard(m_lock);
        grow(folder.tag(), bytes);
        for (const TreeFile& file : files) {
            if (file.status.links > 1)
                add(file.status, folder.tag());
        }
    }

    /// After the scan; the nodes have no paths yet.
    [[nodiscard]] std::vector<TreeNode> take()
    {
        for (const auto& [identity, file] : m_linked)
            grow(file.node, file.bytes);
        return std::move(m_nodes);
    }

private:
    struct Linked {
        std::size_t node = 0;
        std::int64_t bytes = 0;
    };

    static bool isRoot(const TreeFolder& folder) { return folder.parent() == nullptr; }

    /// A file with several names counts for the child that comes first by name, whichever thread meets which
    /// name first.
    void add(const FileStatus& file, std::size_t node)
    {
        if (file.links < 2)
            return grow(node, file.allocatedBytes);
        const auto [known, isNew] = m_linked.try_emplace(file.identity, Linked{node, file.allocatedBytes});
        if (!isNew && m_nodes[node].name < m_nodes[known->second.node].name)
            known->second.node = node;
    }

    void grow(std::size_t node, std::int64_t bytes)
    {
        m_nodes[node].size = cappedAdd(m_nodes[node].size, bytes);
    }

    std::mutex m_lock;
    std::vector<TreeNode> m_nodes;
    std::unordered_map<FileIdentity, Linked, FileIdentityHash> m_linked;
};

bool comesBefore(const TreeNode& a, const TreeNode& b)
{
    return a.size != b.size ? a.size > b.size : a.name < b.name;
}

TreeNode groupOf(std::span<const TreeNode> leftOut, const std::string& folder)
{
    TreeNode group{{}, folder, 0, false, true, static_cast<std::int64_t>(leftOut.size())};
    group.name = group.title().base();
    for (const TreeNode& node : leftOut)
        group.size = cappedAdd(group.size, node.size);
    return group;
}

std::vector<TreeNode> arranged(std::vector<TreeNode> nodes, const std::string& folder)
{
    std::erase_if(nodes, [](const TreeNode& node) { return node.size < 1; });
    const auto nameless = std::partition(
        nodes.begin(), nodes.end(), [](const TreeNode& node) { return PathText::isValidUtf8(node.name); });
    const auto firstLeftOut =
        nodes.begin() + std::min(static_cast<std::ptrdiff_t>(kMostNodes), nameless - nodes.begin());
    std::partial_sort(nodes.begin(), firstLeftOut, nameless, comesBefore);

    std::vector<TreeNode> shown(std::make_move_iterator(nodes.begin()),
                                std::make_move_iterator(firstLeftOut));
    for (TreeNode& node : shown)
        node.path = PathText::join(folder, node.name);
    if (firstLeftOut != nodes.end())
        shown.push_back(groupOf(std::span(firstLeftOut, nodes.end()), folder));
    return shown;
}

} // namespace

std::vector<TreeNode> children(const std::string& folder, const std::stop_token& stop)
{
    if (!Reachability::admit(folder).ok())
        return {};
    const TreeRoot root{resolved(folder)};
    if (root.path.empty())
        return {};
    ChildSums sums;
    scanTrees(std::span(&root, 1), sums, *CurrentMounts::table(), {}, stop);
    return arranged(sums.take(), folder);
}

} // namespace orlen::DiskMap

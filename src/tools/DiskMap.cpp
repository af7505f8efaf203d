#include "tools/DiskMap.h"

#include "platform/files/Folder.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"
#include "scan/UnreadableFolders.h"
#include "scan/tree/CurrentMounts.h"
#include "scan/tree/TreeScan.h"

#include <algorithm>
#include <functional>
#include <iterator>
#include <mutex>
#include <span>
#include <string_view>
#include <unordered_map>
#include <utility>

namespace orlen::DiskMap {

namespace {

constexpr std::ptrdiff_t kMostNodes = 60;
/// Of those, as many are left to folders of unknown size, which would else come last.
constexpr std::ptrdiff_t kLeftToUnread = 8;

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
        m_nodes.push_back({.name = std::string(name), .path = {}, .isDir = true});
        return static_cast<std::uint32_t>(m_nodes.size() - 1);
    }

    void files(const TreeFolder& folder, std::span<const TreeFile> files) override
    {
        if (isRoot(folder)) {
            const std::lock_guard guard(m_lock);
            for (const TreeFile& file : files) {
                m_nodes.push_back({.name = file.name, .path = {}});
                add(file.status, m_nodes.size() - 1);
                note(m_nodes.back(), file.status.modified);
            }
            return;
        }
        std::int64_t bytes = 0;
        std::optional<TimePoint> newest;
        for (const TreeFile& file : files) {
            bytes = cappedAdd(bytes, file.status.links < 2 ? file.status.allocatedBytes : 0);
            newest = std::max(newest, std::optional(file.status.modified));
        }
        const std::lock_guard guard(m_lock);
        grow(folder.tag(), bytes);
        if (newest)
            note(m_nodes[folder.tag()], *newest);
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

    static void note(TreeNode& node, TimePoint modified)
    {
        node.newest = std::max(node.newest, std::optional(modified));
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
    TreeNode group{.name = {}, .path = folder, .isOther = true};
    for (const TreeNode& node : leftOut) {
        group.smaller += node.isOther ? node.smaller : 1;
        group.size = cappedAdd(group.size, node.size);
        group.newest = std::max(group.newest, node.newest);
        if (node.reading != TreeNode::Reading::whole)
            group.reading = TreeNode::Reading::partly;
    }
    group.name = group.title().base();
    return group;
}

/// Notes what could not be read on the children it is in. `root` is the folder without links.
void markUnread(std::vector<TreeNode>& nodes, const UnreadableFolders& unreadable, const std::string& root)
{
    if (unreadable.count() == 0)
        return;
    std::unordered_map<std::string_view, TreeNode*> byName;
    for (TreeNode& node : nodes) {
        byName.emplace(node.name, &node);
        // Such names are counted there, but not listed.
        if (node.isDir && node.size < 1 && !node.isNameable() && !isListable(PathText::join(root, node.name)))
            node.reading = TreeNode::Reading::none;
    }
    for (const std::string& path : unreadable.paths()) {
        if (!PathText::isAtOrBelow(path, root) || path.size() == root.size())
            continue;
        const auto names = PathText::components(std::string_view(path).substr(root.size()));
        const auto found = names.empty() ? byName.end() : byName.find(names.front());
        if (found == byName.end() || found->second->reading == TreeNode::Reading::none)
            continue;
        found->second->reading = names.size() == 1 ? TreeNode::Reading::none : TreeNode::Reading::partly;
    }
}

std::vector<TreeNode> arranged(std::vector<TreeNode> nodes, const std::string& folder)
{
    std::erase_if(
        nodes, [](const TreeNode& node) { return node.size < 1 && node.reading != TreeNode::Reading::none; });
    const auto unread =
        std::partition(nodes.begin(), nodes.end(), [](const TreeNode& node) { return node.size > 0; });
    const std::ptrdiff_t measured =
        std::min(unread - nodes.begin(), kMostNodes - std::min(kLeftToUnread, nodes.end() - unread));
    std::partial_sort(nodes.begin(), nodes.begin() + measured, unread, comesBefore);
    std::sort(unread, nodes.end(), comesBefore);
    // Those that are shown stand behind what is shown of the others.
    std::rotate(nodes.begin() + measured, unread, nodes.end());
    const auto firstLeftOut = nodes.begin() + std::min(kMostNodes, std::ssize(nodes));

    std::vector<TreeNode> shown(std::make_move_iterator(nodes.begin()),
                                std::make_move_iterator(firstLeftOut));
    for (TreeNode& node : shown) {
        node.path = PathText::join(folder, node.name);
        if (const auto status = statusOf(node.path); status.ok())
            node.stamp = FileStamp::of(status.value());
    }
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
    UnreadableFolders unreadable;
    scanTrees(std::span(&root, 1), sums, *CurrentMounts::table(), {.unreadable = &unreadable}, stop);
    std::vector<TreeNode> nodes = sums.take();
    markUnread(nodes, unreadable, root.path);
    return arranged(std::move(nodes), folder);
}

std::vector<TreeNode> nameable(std::vector<TreeNode> nodes, const std::string& folder)
{
    const auto nameless = std::stable_partition(
        nodes.begin(), nodes.end(), [](const TreeNode& node) { return node.isNameable() && !node.isOther; });
    if (std::all_of(nameless, nodes.end(), std::mem_fn(&TreeNode::isNameable)))
        return nodes;
    const TreeNode group = groupOf(std::span(nameless, nodes.end()), folder);
    nodes.erase(nameless, nodes.end());
    nodes.push_back(group);
    return nodes;
}

} // namespace orlen::DiskMap

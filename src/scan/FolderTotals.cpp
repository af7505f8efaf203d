#include "scan/FolderTotals.h"

#include "platform/text/PathText.h"
#include "platform/values/CheckedSum.h"

#include <algorithm>
#include <numeric>
#include <utility>

namespace orlen {

namespace {

/// A counter holds the number of its node and, so that most folders need no lock, its level.
constexpr int kLevelBits = 3;
constexpr FolderTotals::Counter kLevelMask = (1U << kLevelBits) - 1;
constexpr std::size_t kMostNodes = std::size_t{1} << (FolderTotals::kBits - kLevelBits - 1);

constexpr std::int64_t kLeast = 1'000'000;
constexpr std::size_t kMostFolders = 400;

} // namespace

FolderTotals::Counter FolderTotals::addNode(Node node, Counter level)
{
    m_nodes.push_back(std::move(node));
    return static_cast<Counter>(m_nodes.size() - 1) << kLevelBits | level;
}

FolderTotals::Counter FolderTotals::addRoot(std::string path)
{
    const std::lock_guard lock(m_lock);
    const auto number = static_cast<std::uint32_t>(m_nodes.size());
    m_roots.push_back(number);
    return addNode({number, static_cast<std::uint32_t>(m_roots.size() - 1), std::move(path)}, 0);
}

FolderTotals::Counter FolderTotals::child(Counter parent, std::string_view name)
{
    if ((parent & kLevelMask) >= kLevels || !PathText::isValidUtf8(name))
        return parent;
    const std::lock_guard lock(m_lock);
    if (m_nodes.size() >= kMostNodes)
        return parent;
    const std::uint32_t number = parent >> kLevelBits;
    return addNode({number, m_nodes[number].root, std::string(name)}, (parent & kLevelMask) + 1);
}

void FolderTotals::add(Counter counter, std::int64_t bytes)
{
    if (counter == kNone || bytes == 0)
        return;
    const std::lock_guard lock(m_lock);
    std::int64_t& sum = m_nodes[counter >> kLevelBits].bytes;
    sum = cappedAdd(sum, bytes);
}

std::size_t FolderTotals::rootOf(Counter counter) const
{
    const std::lock_guard lock(m_lock);
    return m_nodes[counter >> kLevelBits].root;
}

std::vector<std::int64_t> FolderTotals::totalsOf(const std::vector<Node>& nodes)
{
    std::vector<std::int64_t> totals(nodes.size());
    for (std::size_t i = nodes.size(); i-- > 0;) {
        totals[i] = cappedAdd(totals[i], nodes[i].bytes);
        if (nodes[i].parent != i)
            totals[nodes[i].parent] = cappedAdd(totals[nodes[i].parent], totals[i]);
    }
    return totals;
}

std::vector<std::int64_t> FolderTotals::rootBytes() const
{
    const std::lock_guard lock(m_lock);
    std::vector<std::int64_t> bytes(m_roots.size());
    for (const Node& node : m_nodes)
        bytes[node.root] = cappedAdd(bytes[node.root], node.bytes);
    return bytes;
}

std::vector<FolderTotals::Item> FolderTotals::items() const
{
    const std::lock_guard lock(m_lock);
    const std::vector<std::int64_t> totals = totalsOf(m_nodes);
    std::vector<Item> items;
    for (std::size_t i = 0; i < m_nodes.size(); ++i) {
        const Node& node = m_nodes[i];
        if (node.parent != i && node.parent == m_roots[node.root])
            items.push_back({node.root, node.name, totals[i]});
    }
    return items;
}

/// The folders of several scans, with what each root holds added to the folder that it lies in.
class FolderTotals::Joined {
public:
    void take(const FolderTotals& part)
    {
        const std::lock_guard lock(part.m_lock);
        const auto nodes = static_cast<std::uint32_t>(m_nodes.size());
        const auto roots = static_cast<std::uint32_t>(m_roots.size());
        for (Node node : part.m_nodes) {
            node.parent += nodes;
            node.root += roots;
            m_nodes.push_back(std::move(node));
        }
        for (const std::uint32_t root : part.m_roots)
            m_roots.push_back(root + nodes);
    }

    /// The innermost roots first, so that what they hold reaches the outermost.
    void addToOuterRoots()
    {
        std::vector<std::int64_t> bytes(m_roots.size());
        for (const Node& node : m_nodes)
            bytes[node.root] = cappedAdd(bytes[node.root], node.bytes);
        std::vector<std::uint32_t> order(m_roots.size());
        std::iota(order.begin(), order.end(), 0U);
        std::ranges::stable_sort(order, std::ranges::greater(),
                                 [this](std::uint32_t root) { return pathOf(root).size(); });
        for (const std::uint32_t root : order) {
            const std::uint32_t outer = outerOf(root);
            if (outer == root)
                continue;
            Node& folder = m_nodes[folderIn(outer, pathOf(root))];
            folder.bytes = cappedAdd(folder.bytes, bytes[root]);
            bytes[outer] = cappedAdd(bytes[outer], bytes[root]);
        }
    }

    [[nodiscard]] FolderReading reading() const
    {
        const std::vector<std::int64_t> totals = totalsOf(m_nodes);
        std::vector<std::uint32_t> listed;
        for (std::uint32_t i = 0; i < m_nodes.size(); ++i) {
            if (totals[i] >= kLeast)
                listed.push_back(i);
        }
        // Roots first, since those are known places.
        const auto rank = [&](std::uint32_t i) { return std::pair(m_nodes[i].parent == i, totals[i]); };
        std::ranges::stable_sort(listed, std::ranges::greater(), rank);
        FolderReading reading;
        reading.least = kLeast;
        if (listed.size() > kMostFolders) {
            reading.least = totals[listed[kMostFolders]] + 1;
            // Of folders of the same size, all or none.
            std::erase_if(
                listed, [&](std::uint32_t i) { return m_nodes[i].parent != i && totals[i] < reading.least; });
        }
        for (const std::uint32_t i : listed) {
            if (std::string path = fullPath(i); PathText::isValidUtf8(path))
                reading.folders.push_back({std::move(path), totals[i]});
        }
        std::ranges::sort(reading.folders, {}, &FolderSize::path);
        const auto hasSamePath = [](const FolderSize& a, const FolderSize& b) { return a.path == b.path; };
        reading.folders.erase(std::unique(reading.folders.begin(), reading.folders.end(), hasSamePath),
                              reading.folders.end());
        return reading;
    }

private:
    [[nodiscard]] const std::string& pathOf(std::uint32_t root) const { return m_nodes[m_roots[root]].name; }

    [[nodiscard]] std::string fullPath(std::uint32_t number) const
    {
        const Node& node = m_nodes[number];
        return node.parent == number ? node.name : PathText::join(fullPath(node.parent), node.name);
    }

    /// The innermost root around this one; itself if there is none.
    [[nodiscard]] std::uint32_t outerOf(std::uint32_t root) const
    {
        std::uint32_t outer = root;
        for (std::uint32_t other = 0; other < m_roots.size(); ++other) {
            const bool isAround =
                pathOf(other) != pathOf(root) && PathText::isAtOrBelow(pathOf(root), pathOf(other));
            if (isAround && (outer == root || pathOf(other).size() > pathOf(outer).size()))
                outer = other;
        }
        return outer;
    }

    /// The innermost folder of a root with a counter around the path.
    [[nodiscard]] std::uint32_t folderIn(std::uint32_t root, std::string_view path) const
    {
        std::uint32_t folder = m_roots[root];
        std::string_view rest = path.substr(pathOf(root).size());
        while (rest.starts_with('/')) {
            rest.remove_prefix(1);
            const std::string_view name = rest.substr(0, rest.find('/'));
            rest.remove_prefix(name.size());
            const auto found =
                std::find_if(m_nodes.begin() + folder + 1, m_nodes.end(),
                             [&](const Node& node) { return node.parent == folder && node.name == name; });
            if (found == m_nodes.end())
                break;
            folder = static_cast<std::uint32_t>(found - m_nodes.begin());
        }
        return folder;
    }

    std::vector<Node> m_nodes;
    std::vector<std::uint32_t> m_roots;
};

FolderReading FolderTotals::reading(const FolderTotals& a, const FolderTotals& b)
{
    Joined joined;
    joined.take(a);
    joined.take(b);
    joined.addToOuterRoots();
    return joined.reading();
}

} // namespace orlen

#include "model/PathTree.h"

#include <algorithm>
#include <numeric>

namespace orlen {

namespace {

unsigned char rankOf(char byte)
{
    // Paths contain no NUL.
    return byte == '/' ? 0 : static_cast<unsigned char>(byte);
}

} // namespace

bool PathTree::comesBefore(std::string_view a, std::string_view b)
{
    return std::ranges::lexicographical_compare(a, b, {}, rankOf, rankOf);
}

bool PathTree::isInside(std::string_view path, std::string_view folder)
{
    return !folder.empty() && path.starts_with(folder) && path.substr(folder.size()).starts_with('/');
}

PathTree::PathTree(std::span<const std::string_view> paths) : m_nodeOf(paths.size())
{
    std::vector<std::size_t> order(paths.size());
    std::iota(order.begin(), order.end(), std::size_t{0});
    std::sort(order.begin(), order.end(),
              [&](std::size_t a, std::size_t b) { return comesBefore(paths[a], paths[b]); });
    m_nodes.reserve(paths.size());
    for (const std::size_t place : order) {
        if (m_nodes.empty() || m_nodes.back().path != paths[place])
            m_nodes.push_back({std::string(paths[place]), kNone, 0});
        m_nodeOf[place] = size() - 1;
    }
    link();
}

void PathTree::link()
{
    int open = kNone; // the innermost folder that may hold the next node
    const auto closeUntil = [&](auto isHolder, int next) {
        while (open != kNone && !isHolder(open)) {
            m_nodes[static_cast<std::size_t>(open)].end = next;
            open = holder(open);
        }
    };
    for (int node = 0; node < size(); ++node) {
        closeUntil([&](int folder) { return isInside(path(node), path(folder)); }, node);
        m_nodes[static_cast<std::size_t>(node)].holder = open;
        m_isNested = m_isNested || open != kNone;
        open = node;
    }
    closeUntil([](int) { return false; }, size());
}

int PathTree::find(std::string_view path) const
{
    const auto found =
        std::lower_bound(m_nodes.begin(), m_nodes.end(), path, [](const Node& node, std::string_view wanted) {
            return comesBefore(node.path, wanted);
        });
    return found == m_nodes.end() || found->path != path ? kNone : static_cast<int>(found - m_nodes.begin());
}

} // namespace orlen

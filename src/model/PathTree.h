#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// A list of paths as a tree: which of them lie inside another. Each path is one node however often it was
/// listed, and a folder's node is directly followed by the nodes inside it. A plain value; any thread.
class PathTree {
public:
    /// No node.
    static constexpr int kNone = -1;

    PathTree() = default;
    /// The paths may be in any order.
    explicit PathTree(std::span<const std::string_view> paths);

    [[nodiscard]] int size() const { return static_cast<int>(m_nodes.size()); }
    [[nodiscard]] const std::string& path(int node) const { return at(node).path; }
    /// The nearest listed folder that contains the node.
    [[nodiscard]] int holder(int node) const { return at(node).holder; }
    /// One past the last node inside this one.
    [[nodiscard]] int end(int node) const { return at(node).end; }
    /// The node of a path; `kNone` if it is not listed.
    [[nodiscard]] int find(std::string_view path) const;
    /// The node of the path at this index of the list.
    [[nodiscard]] int nodeOf(std::size_t place) const { return m_nodeOf[place]; }
    /// Whether any node lies inside another.
    [[nodiscard]] bool isNested() const { return m_isNested; }

    /// Path order: bytewise, but "/" sorts before every other byte, so that "a/x" follows "a" and precedes "a
    /// b".
    [[nodiscard]] static bool comesBefore(std::string_view a, std::string_view b);
    /// Whether the path lies inside the folder, which must not be "/" or empty.
    [[nodiscard]] static bool isInside(std::string_view path, std::string_view folder);

private:
    struct Node {
        std::string path;
        int holder = kNone;
        int end = 0;
    };

    [[nodiscard]] const Node& at(int node) const { return m_nodes[static_cast<std::size_t>(node)]; }
    void link();

    std::vector<Node> m_nodes;
    std::vector<int> m_nodeOf; ///< by index of the list
    bool m_isNested = false;
};

} // namespace orlen

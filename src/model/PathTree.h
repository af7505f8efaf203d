#pragma once

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Listed paths as a tree: which of them lie in another one. Each path is one node, however often it was
/// listed, and the nodes stand in an order in which a folder is followed at once by what lies in it. A plain
/// value; any thread.
class PathTree {
public:
    /// No node.
    static constexpr int kNone = -1;

    PathTree() = default;
    /// Of paths in any order.
    explicit PathTree(std::span<const std::string_view> paths);

    [[nodiscard]] int size() const { return static_cast<int>(m_nodes.size()); }
    [[nodiscard]] const std::string& path(int node) const { return at(node).path; }
    /// The nearest listed folder that holds the node.
    [[nodiscard]] int holder(int node) const { return at(node).holder; }
    /// The node behind the last one that lies in this one.
    [[nodiscard]] int end(int node) const { return at(node).end; }
    /// The node of a path; `kNone` for one that is not listed.
    [[nodiscard]] int find(std::string_view path) const;
    /// The node of the path that was given at this place.
    [[nodiscard]] int nodeOf(std::size_t place) const { return m_nodeOf[place]; }
    /// Whether any node lies in another one.
    [[nodiscard]] bool isNested() const { return m_isNested; }

    /// Path order: by bytes, but with "/" before every other one, so that "a/x" follows "a" before "a b"
    /// does.
    [[nodiscard]] static bool comesBefore(std::string_view a, std::string_view b);
    /// Whether the path lies in the folder, which is not "/" and not empty.
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
    std::vector<int> m_nodeOf; ///< of each path given
    bool m_isNested = false;
};

} // namespace orlen

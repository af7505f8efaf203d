#pragma once

#include <cstdint>
#include <functional>
#include <map>
#include <memory>
#include <string>
#include <string_view>

namespace orlen {

/// Marks on a few absolute paths, as a tree of components, so that a scan descending in step recognises a
/// marked folder by name alone: no path is built for the many unmarked folders. Built first, then read by any
/// number of threads.
class PathMarks {
public:
    /// The bit that makes a scan skip a path without touching it. Callers may use the other bits.
    static constexpr std::uint32_t kSkip = 1;

    class Node {
    public:
        [[nodiscard]] std::uint32_t marks() const { return m_marks; }
        /// Null if nothing at or below that child is marked.
        [[nodiscard]] const Node* child(std::string_view name) const;

    private:
        friend class PathMarks;
        std::uint32_t m_marks = 0;
        std::map<std::string, std::unique_ptr<Node>, std::less<>> m_children;
    };

    PathMarks() : m_root(std::make_unique<Node>()) {}

    /// Adds bits to the marks of a path.
    void mark(std::string_view path, std::uint32_t bits);
    /// The node of a path; null if nothing at or below it is marked.
    [[nodiscard]] const Node* at(std::string_view path) const;

private:
    std::unique_ptr<Node> m_root;
};

} // namespace orlen

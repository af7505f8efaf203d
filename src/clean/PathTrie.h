#pragma once

#include <cstdint>
#include <map>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Marks on paths, arranged by component, so that following a path once meets every mark that affects it.
/// Filled by one thread, then read by any number. Purely textual: no disk, no links.
class PathTrie {
public:
    enum class Mark : std::uint8_t {
        itself = 1,   ///< this path only
        contents = 2, ///< this path and everything below it
        closed = 4,   ///< this path and everything below it, down to the next `opened`
        opened = 8,   ///< ends a `closed` from above, but not a `contents`
    };

    PathTrie();

    /// Marks `folder`, taken literally, followed by `pattern`, in which a component "*" matches any one
    /// component. A last component ending in "*" matches all names that start with the text before it, each
    /// with its contents, whatever the mark.
    void add(std::string_view folder, std::string_view pattern, Mark mark);

    /// Follows one path from the root down. Must not outlive the trie.
    class Cursor {
    public:
        explicit Cursor(const PathTrie& trie);

        void enter(std::string_view component);

        /// A `contents` mark was passed: nothing further down can change the answers.
        [[nodiscard]] bool isSealed() const { return m_isSealed; }
        [[nodiscard]] bool isMarked() const;
        /// Whether everything below is marked as well.
        [[nodiscard]] bool areContentsMarked() const;

    private:
        void arrive(std::uint32_t place);

        const PathTrie& m_trie;
        std::uint32_t m_place = 0;
        bool m_isSealed = false;
        bool m_isClosed = false;
    };

private:
    using Index = std::uint32_t;
    static constexpr Index kNone = ~Index{0};

    struct Node {
        std::map<std::string, Index, std::less<>> named;
        std::vector<std::string> sealedStarts; ///< prefixes of names sealed with their contents
        Index any = kNone;                     ///< any component not in `named`
        std::uint8_t marks = 0;
        bool leadsToOpened = false;

        [[nodiscard]] bool has(Mark mark) const;
    };

    [[nodiscard]] Index addNode(Node node);
    [[nodiscard]] Index copyOf(Index place);
    [[nodiscard]] Index childNamed(Index parent, std::string_view name);
    [[nodiscard]] std::vector<Index> everyChild(Index parent);

    std::vector<Node> m_nodes; ///< the first is the root folder
};

} // namespace orlen

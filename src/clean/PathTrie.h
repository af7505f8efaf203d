#pragma once

#include <array>
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

    /// Says which rule made a mark; 0 says nothing.
    using Label = std::uint8_t;

    PathTrie();

    /// Marks `folder`, taken literally, followed by `pattern`, in which a component that ends in "*" matches
    /// every name that starts with the text before it. Of several labels for the same mark on one path, the
    /// first stays.
    void add(std::string_view folder, std::string_view pattern, Mark mark, Label label = 0);

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
        /// The label of the mark that decides; 0 if the path is not marked.
        [[nodiscard]] Label label() const;

    private:
        void arrive(std::uint32_t place);

        const PathTrie& m_trie;
        std::uint32_t m_place = 0;
        bool m_isSealed = false;
        bool m_isClosed = false;
        Label m_label = 0; ///< of the last `contents` or `closed` that was passed
    };

private:
    using Index = std::uint32_t;
    static constexpr Index kNone = ~Index{0};

    /// The child for the names that start with a text; with an empty one, for any name.
    struct Start {
        std::string text;
        Index place = kNone;
    };

    struct Node {
        std::map<std::string, Index, std::less<>> named;
        std::vector<Start> starts; ///< for names that are not in `named`; the longest text first
        std::uint8_t marks = 0;
        bool leadsToOpened = false;
        std::array<Label, 4> labels{}; ///< one for each mark

        [[nodiscard]] bool has(Mark mark) const;
        [[nodiscard]] Label labelOf(Mark mark) const;
        void put(Mark mark, Label label);
        /// The child for names that start like this one, regardless of `named`; `kNone` if there is none.
        [[nodiscard]] Index startOf(std::string_view name) const;
    };

    [[nodiscard]] Index addNode(Node node);
    [[nodiscard]] Index copyOf(Index place);
    [[nodiscard]] Index childNamed(Index parent, std::string_view name);
    [[nodiscard]] std::vector<Index> childrenStarting(Index parent, std::string_view text);

    std::vector<Node> m_nodes; ///< the first is the root folder
};

} // namespace orlen

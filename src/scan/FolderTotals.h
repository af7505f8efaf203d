#pragma once

#include "clean/FolderReading.h"

#include <cstdint>
#include <mutex>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Adds up folders while they are scanned: every folder down to some levels below its root, with all that is
/// in it. A counter is a tag that a `TreeVisitor` can give to a folder. Any thread until the scan ends.
class FolderTotals {
public:
    using Counter = std::uint32_t;
    /// Counters take this many bits.
    static constexpr int kBits = 28;
    /// Of what is counted elsewhere, or not at all.
    static constexpr Counter kNone = (Counter{1} << kBits) - 1;
    /// Folders this many levels below their root have counters of their own; deeper ones count for those.
    static constexpr Counter kLevels = 4;

    /// A folder in the form all rules compare. Roots may lie in each other when each is scanned without the
    /// other.
    [[nodiscard]] Counter addRoot(std::string path);
    /// For a folder in another; that one's own counter for `kNone`, too deep folders and names that are not
    /// UTF-8.
    [[nodiscard]] Counter child(Counter parent, std::string_view name);
    void add(Counter counter, std::int64_t bytes);
    /// Number of the root that a folder is in.
    [[nodiscard]] std::size_t rootOf(Counter counter) const;

    /// After the scan: bytes of each root, in the order they were added, without those in it.
    [[nodiscard]] std::vector<std::int64_t> rootBytes() const;
    struct Item {
        std::size_t root = 0; ///< number of the root
        std::string name;
        std::int64_t bytes = 0;
    };
    /// The folders directly in the roots.
    [[nodiscard]] std::vector<Item> items() const;

    /// What the folders that matter hold, those of several scans of different folders together: all roots,
    /// and the largest of the others, a few hundred in all, of at least 1,000,000 bytes. Here a root counts
    /// for the folder it lies in, too. The date is not set.
    [[nodiscard]] static FolderReading reading(const FolderTotals& a, const FolderTotals& b);

private:
    struct Node {
        std::uint32_t parent = 0; ///< a root is its own
        std::uint32_t root = 0;
        std::string name; ///< of a root, its path
        std::int64_t bytes = 0;
    };
    class Joined;

    [[nodiscard]] static std::vector<std::int64_t> totalsOf(const std::vector<Node>& nodes);
    [[nodiscard]] Counter addNode(Node node, Counter level);

    mutable std::mutex m_lock;
    std::vector<Node> m_nodes; ///< every folder behind the one it is in
    std::vector<std::uint32_t> m_roots;
};

} // namespace orlen

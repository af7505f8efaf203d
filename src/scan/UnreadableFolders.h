#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

namespace orlen {

/// The folders that a scan wanted to look into and could not. Any thread.
class UnreadableFolders {
public:
    /// So many are listed at most; all are counted.
    static constexpr std::size_t kMostListed = 1'000;

    /// Counts a folder once, however often it is met.
    void add(const std::string& folder);
    /// The same for a folder that could not be opened or listed, with the reason; what is no longer there, or
    /// is no folder, is not counted.
    void add(const std::string& folder, int error);
    /// Whether this reason means that there is something that could not be looked into.
    [[nodiscard]] static bool isUnreadable(int error);

    [[nodiscard]] std::int64_t count() const;
    /// Those that come first by path. Only names that are valid UTF-8 are listed.
    [[nodiscard]] std::vector<std::string> paths() const;

private:
    mutable std::mutex m_lock;
    std::set<std::string> m_paths;
    std::unordered_set<std::size_t> m_seen; ///< hashes: the texts of a million folders would fill the memory
};

} // namespace orlen

#pragma once

#include <cstddef>
#include <cstdint>
#include <mutex>
#include <set>
#include <string>
#include <unordered_set>
#include <vector>

namespace orlen {

/// The folders a scan could not look into. Any thread.
class UnreadableFolders {
public:
    /// At most this many are listed; all are counted.
    static constexpr std::size_t kMostListed = 1'000;

    /// Counts a folder once, however often it is met.
    void add(const std::string& folder);
    /// The same for a folder that failed to open or list; ignored if the error means that it is gone or not a
    /// folder.
    void add(const std::string& folder, int error);
    /// Whether this error means that something exists but cannot be read.
    [[nodiscard]] static bool isUnreadable(int error);

    [[nodiscard]] std::int64_t count() const;
    /// The first ones by path. Only valid UTF-8 is listed.
    [[nodiscard]] std::vector<std::string> paths() const;

private:
    mutable std::mutex m_lock;
    std::set<std::string> m_paths;
    std::unordered_set<std::size_t> m_seen; ///< hashes, since a million paths would take too much memory
};

} // namespace orlen

#pragma once

#include "scan/tree/TreeScan.h"

#include <atomic>
#include <cstdint>
#include <mutex>
#include <span>
#include <unordered_map>

namespace orlen {

/// Allocated bytes.
struct TreeSize {
    std::int64_t held = 0;  ///< of all files, each counted once however many names it has
    std::int64_t freed = 0; ///< of those that would be gone: every name of the file is counted among them
    friend bool operator==(const TreeSize&, const TreeSize&) = default;
};

/// Adds up the files of one tree while it is scanned, by any number of threads. A file with one name, which
/// is nearly every file, costs an addition; only the others are remembered.
class TreeSum {
public:
    void add(std::span<const TreeFile> files);

    /// After the scan.
    [[nodiscard]] TreeSize size() const;

private:
    struct Linked {
        std::uint32_t met = 0;   ///< names met in the tree
        std::uint32_t names = 0; ///< names there are
        std::int64_t bytes = 0;
    };

    /// With the lock held.
    void addLinked(const FileStatus& file);

    std::atomic<std::int64_t> m_bytes{0}; ///< of files with one name
    mutable std::mutex m_lock;
    std::unordered_map<FileIdentity, Linked, FileIdentityHash> m_linked;
};

/// Adds to a sum shared by several threads; capped like `cappedAdd`.
void addTo(std::atomic<std::int64_t>& sum, std::int64_t bytes);

} // namespace orlen

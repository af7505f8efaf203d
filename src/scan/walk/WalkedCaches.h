#pragma once

#include "model/FileEntry.h"
#include "scan/Cand.h"
#include "scan/FolderTotals.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

class UnreadableFolders;

/// The caches that a walk meets: folders tagged as such, and the caches of projects. Programs tag what they
/// can recreate, and people what they keep out of backups.
namespace WalkedCaches {

struct Folder {
    std::string path;
    Text note;                                           ///< for its entry
    FolderTotals::Counter counter = FolderTotals::kNone; ///< where it counts
};

struct Found {
    /// Folders of at least 1,000,000 bytes that may be moved, largest first, at most 600, rated `review`.
    std::vector<FileEntry> entries;
    /// Files of at least the given size in the folders, offered or not, that a walk would have found; sorted
    /// by path, one name per file.
    std::vector<Cand> largeFiles;
};

/// Measures the folders and finds their large files in one pass. Blocks on the disk. If stopped, returns what
/// it has. `unreadable`, if not null, collects folders that could not be read; `totals`, if not null,
/// receives what the folders hold.
[[nodiscard]] Found measure(const std::vector<Folder>& folders, std::int64_t largeBytes,
                            UnreadableFolders* unreadable, FolderTotals* totals, const std::stop_token& stop);

} // namespace WalkedCaches
} // namespace orlen

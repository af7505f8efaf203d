#pragma once

#include "model/FileEntry.h"
#include "scan/Cand.h"

#include <cstdint>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

class UnreadableFolders;

/// Folders that mark themselves as caches: programs do so with what they can make again, and people with what
/// they keep out of their backups.
namespace TaggedCaches {

struct Found {
    /// Folders of at least 1,000,000 bytes that may be moved, largest first, at most 600, rated `review`.
    std::vector<FileEntry> entries;
    /// Files in the folders, whether these are offered or not, that a walk would have met and that have at
    /// least the bytes asked for; by path, of the names of one file only the first.
    std::vector<Cand> largeFiles;
};

/// Measures the folders and looks through them for large files in one go. Blocks on the disk. A stopped
/// measurement returns what it has. `unreadable`, when not null, is told of folders that could not be read.
[[nodiscard]] Found measure(const std::vector<std::string>& folders, std::int64_t largeBytes,
                            UnreadableFolders* unreadable, const std::stop_token& stop);

} // namespace TaggedCaches
} // namespace orlen

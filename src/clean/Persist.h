#pragma once

#include "clean/CleanRecord.h"
#include "clean/Snapshot.h"
#include "platform/values/Result.h"

#include <string>
#include <vector>

/// The program's own two files, in the data folder "Orlen". Where one of them is a link, it stays one and
/// what it leads to is read and written. Main thread; calls are synchronous and small.
namespace orlen::Persist {

/// The data folder's path; nothing is made.
[[nodiscard]] std::string dir();
/// Makes the data folder with its missing parents (mode 0700) and returns its path. EPERM in a home folder
/// that is not the user's own: what is made there would be in the owner's way.
[[nodiscard]] Result<std::string> makeDir();

/// Whether the data folder's place answers; false on a network disk that is gone. Waits for a probe at most.
[[nodiscard]] bool isReachable();

enum class Problem {
    none,
    damaged,    ///< not everything in the file could be understood; the next save sets it aside first
    unreadable, ///< the file is there but could not be read; it will not be written
};

template <typename Record>
struct Loaded {
    std::vector<Record> records; ///< what could be read; empty when the file is missing
    Problem problem = Problem::none;
    int error = 0; ///< the errno when unreadable, else 0
};

/// "history.json", newest first.
[[nodiscard]] Loaded<CleanRecord> loadHistory();
/// "scans.json", oldest first.
[[nodiscard]] Loaded<Snapshot> loadSnapshots();

/// Rewrites the file. On failure, ENOSPC among others, the old file stays as it was. A file that could not be
/// read when it was last loaded, or cannot be now, is not written over: the errno is that of the reading. One
/// that cannot be understood in full is first renamed to "history.unreadable-<UTC time>.json" beside it; the
/// newest three of those stay.
[[nodiscard]] Result<void> saveHistory(const std::vector<CleanRecord>& history);
/// The same for "scans.json".
[[nodiscard]] Result<void> saveSnapshots(const std::vector<Snapshot>& snapshots);

} // namespace orlen::Persist

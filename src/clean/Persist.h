#pragma once

#include "clean/CleanRecord.h"
#include "clean/Exclusion.h"
#include "clean/FolderReading.h"
#include "clean/Snapshot.h"
#include "platform/values/Result.h"

#include <string>
#include <vector>

/// The files of the program's data, in the data folder "Orlen". A file that is a link stays one; its
/// target is read and written. Main thread; calls are synchronous and small.
namespace orlen::Persist {

/// The path of the data folder, which may not exist yet.
[[nodiscard]] std::string dir();
/// Creates the data folder and its missing parents (mode 0700) and returns its path. EPERM if the home folder
/// is not the user's own, since files created there would get in the owner's way.
[[nodiscard]] Result<std::string> makeDir();

/// Whether the data folder is reachable; false on a network disk that is gone. Waits for at most one probe.
[[nodiscard]] bool isReachable();

enum class Problem {
    none,
    damaged,    ///< not all of the file could be parsed; the next save sets it aside first
    unreadable, ///< the file exists but could not be read; it will not be overwritten
};

template <typename Record>
struct Loaded {
    std::vector<Record> records; ///< what could be read; empty if the file is missing
    Problem problem = Problem::none;
    int error = 0; ///< errno if unreadable, else 0
};

/// "history.json", newest first.
[[nodiscard]] Loaded<CleanRecord> loadHistory();
/// "scans.json", oldest first.
[[nodiscard]] Loaded<Snapshot> loadSnapshots();
/// "exclusions.json", in the order they were added.
[[nodiscard]] Loaded<Exclusion> loadExclusions();
/// "folders.json", oldest first.
[[nodiscard]] Loaded<FolderReading> loadFolderReadings();

/// Replaces the file. On failure, such as ENOSPC, the old file stays. A file that could not be read when last
/// loaded, or cannot be read now, is not overwritten; the errno is that of reading. A file that cannot be
/// fully parsed is first renamed to "history.unreadable-<UTC time>.json"; the newest three of those are kept.
[[nodiscard]] Result<void> saveHistory(const std::vector<CleanRecord>& history);
/// The same for "scans.json".
[[nodiscard]] Result<void> saveSnapshots(const std::vector<Snapshot>& snapshots);
/// The same for "exclusions.json". EFBIG for more than can be read again.
[[nodiscard]] Result<void> saveExclusions(const std::vector<Exclusion>& exclusions);
/// The same for "folders.json", which is not worth giving up the `Reserve` for.
[[nodiscard]] Result<void> saveFolderReadings(const std::vector<FolderReading>& readings);

} // namespace orlen::Persist

#pragma once

#include "clean/CleanRecord.h"
#include "clean/Snapshot.h"
#include "platform/Result.h"

#include <string>
#include <vector>

/// The program's own two files. Main thread; calls are synchronous and small.
namespace orlen::Persist {

/// The data folder "Orlen", made with its missing parents (mode 0700) each time it is asked for; a failure to
/// make it is ignored.
[[nodiscard]] std::string dir();

/// Rewrites "history.json" (newest first), in the room of the reserve if need be. The errno of a failed
/// write.
[[nodiscard]] Result<void> saveHistory(const std::vector<CleanRecord>& history);
/// Rewrites "scans.json" (oldest first); a failed write is ignored.
void saveSnapshots(const std::vector<Snapshot>& snapshots);

/// Empty when the file is missing, unreadable or malformed in any part; the file is left as it is.
[[nodiscard]] std::vector<CleanRecord> loadHistory();
[[nodiscard]] std::vector<Snapshot> loadSnapshots();

} // namespace orlen::Persist

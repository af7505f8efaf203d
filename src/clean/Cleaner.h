#pragma once

#include "clean/CleanRecord.h"
#include "model/CleanFailure.h"
#include "model/FileEntry.h"

#include <functional>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

/// Moves entries to the Trash and back. Nothing is ever deleted, and nothing moves that a journal does not
/// tell: see History, which takes the outcome. Blocks on the disk: never call from the main thread.
namespace orlen::Cleaner {

/// Index of the item about to be handled (or the number of items at the end), number of items, the item's
/// name (empty at the end). Called on the thread that runs the clean-up.
using Progress = std::function<void(int index, int total, const std::string& name)>;

struct Cleaned {
    CleanRecord record;
    std::vector<CleanFailure> failures; ///< as many as `record.failed`, in path order
    /// Why nothing was begun: the journal could not be written. Every item is a failure then.
    std::optional<FailureReason> refusal;
};

/// Moves the entries, in path order, without those that lie in another entry. What is protected, missing,
/// refused, or not what was shown is counted as failed: another file or folder under the name, a file written
/// to or open for writing, a copy whose kept one has changed, is gone, or is about to go itself. A stop
/// request lets the item in hand finish; what was not begun is then neither moved nor counted as failed.
[[nodiscard]] Cleaned run(std::vector<FileEntry> entries, const std::string& title, const Progress& progress,
                          const std::stop_token& stop = {});

struct Restored {
    CleanRecord record; ///< with `restored` set on each item that was put back
    int restored = 0;
    int failed = 0;
    std::vector<CleanFailure> failures;   ///< by original path, as many as `failed`
    std::optional<FailureReason> refusal; ///< as for Cleaned
};

/// Puts the record's items back that are not yet. An item stays where it is, and counts as failed, when its
/// original place is protected or taken, it is no longer in the Trash, or its name there now belongs to
/// something else. A stop request lets the item in hand finish; what was not begun is then neither restored
/// nor counted as failed.
[[nodiscard]] Restored restore(CleanRecord record, const std::stop_token& stop = {},
                               const Progress& progress = {});

} // namespace orlen::Cleaner

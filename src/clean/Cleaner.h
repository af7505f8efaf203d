#pragma once

#include "clean/CleanRecord.h"
#include "clean/Exclusions.h"
#include "model/CleanFailure.h"
#include "model/CopySets.h"
#include "model/FileEntry.h"

#include <functional>
#include <optional>
#include <set>
#include <stop_token>
#include <string>
#include <vector>

/// Moves entries to the Trash and back. Nothing is ever deleted, and nothing moves before a journal records
/// it; pass the outcome to History. Blocks on the disk: never call from the main thread.
namespace orlen::Cleaner {

/// Called with the index of the item about to be handled and its name, or at the end with `total` and an
/// empty name. Runs on the clean-up's thread.
using Progress = std::function<void(int index, int total, const std::string& name)>;

struct Cleaned {
    CleanRecord record;
    std::vector<CleanFailure> failures; ///< as many as `record.failed`, in path order
    /// Why nothing was started: the journal could not be written. Then every item is a failure.
    std::optional<FailureReason> refusal;
};

/// Moves the entries in path order, skipping those inside another entry. An entry fails if it is protected,
/// excluded, missing, refused by the system, or no longer what was shown: something else has its name, it was
/// written to or is open for writing, or it is a duplicate whose kept copy has changed, is gone or is about
/// to go as well. Of the `sets`, a kept file fails if one of its copies is to move. A stop request lets the
/// current item finish; the rest is neither moved nor counted as failed.
[[nodiscard]] Cleaned run(std::vector<FileEntry> entries, const std::string& title, const Progress& progress,
                          const std::stop_token& stop = {}, const Exclusions& exclusions = {},
                          const std::vector<CopySet>& sets = {});

struct Restored {
    CleanRecord record; ///< with `restored` set on each item put back
    int restored = 0;
    int failed = 0;
    std::vector<CleanFailure> failures;   ///< by original path, as many as `failed`
    std::optional<FailureReason> refusal; ///< as for Cleaned
};

/// Original places of the items to put back; nothing: all of the record.
using Wanted = std::optional<std::set<std::string>>;

/// Puts back those of the record's items that are wanted and not restored yet. An item fails and stays where
/// it is if its original place is protected or taken, it is no longer in the Trash, or its name there now
/// belongs to something else. Stopping and progress work as for `run`.
[[nodiscard]] Restored restore(CleanRecord record, const std::stop_token& stop = {},
                               const Progress& progress = {}, const Wanted& wanted = {});

} // namespace orlen::Cleaner

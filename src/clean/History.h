#pragma once

#include "clean/CleanRecord.h"
#include "platform/values/Result.h"

#include <vector>

/// The list of past clean-ups, newest first, and its file. Each change is saved at once; the journal of a
/// clean-up or a restore is let go only after that. Not for two threads at once; blocks on the disk.
namespace orlen::History {

/// Puts the record of a clean-up that has ended at the front, unless it moved nothing. The errno when the
/// list could not be saved: the record is in the list all the same, and the next start finds it by its
/// journal.
[[nodiscard]] Result<void> add(std::vector<CleanRecord>& history, const CleanRecord& record);

/// Takes over what a restore has changed in a record; a record that is no longer in the list is not added.
/// The errno as for `add`.
[[nodiscard]] Result<void> update(std::vector<CleanRecord>& history, const CleanRecord& record);

/// Finishes what an earlier process had begun when it ended: items that are in the Trash but in no record get
/// their record, items that are back in their place are marked as restored, and files that were never
/// finished are removed. True when the list has changed. Only while no other process writes.
bool recover(std::vector<CleanRecord>& history);

/// Whether there is anything for `recover` to do. Reads one folder.
[[nodiscard]] bool isUnfinished();

} // namespace orlen::History

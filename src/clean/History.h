#pragma once

#include "clean/CleanRecord.h"
#include "platform/values/Result.h"

#include <vector>

/// The list of past clean-ups, newest first, and its file. Every change is saved at once, and only then is
/// the journal of the clean-up or restore dropped. One thread at a time; blocks on the disk.
namespace orlen::History {

/// Puts the record of a finished clean-up at the front, unless it moved nothing. Returns the errno if saving
/// failed; the record is in the list regardless, and the next start recovers it from its journal.
[[nodiscard]] Result<void> add(std::vector<CleanRecord>& history, const CleanRecord& record);

/// Applies a restore's changes to its record in the list; ignored if the record is no longer there. Errors as
/// for `add`.
[[nodiscard]] Result<void> update(std::vector<CleanRecord>& history, const CleanRecord& record);

/// Finishes what a previous process left unfinished: items in the Trash without a record get one, items back
/// in their place are marked as restored, and incomplete files are removed. True if the list changed. Only
/// while no other process writes.
bool recover(std::vector<CleanRecord>& history);

/// Whether `recover` has anything to do. Reads one folder.
[[nodiscard]] bool isUnfinished();

} // namespace orlen::History

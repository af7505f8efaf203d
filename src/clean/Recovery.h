#pragma once

#include "clean/CleanRecord.h"
#include "clean/Journal.h"

/// Finds out on the disk how far a clean-up or a restore came before its process ended. Blocks on the disk.
namespace orlen::Recovery {

/// What the clean-up moved to the Trash: the journal's items that lie in a Trash of theirs under an info file
/// that names their place. Dated by the last of these info files. Info files of items that never moved are
/// removed.
[[nodiscard]] CleanRecord recordOf(const Journal& journal);

/// Marks the record's items that the restore put back: those that are no longer in the Trash, and whose place
/// holds them by their identity. Their info files are removed.
void markRestored(CleanRecord& record, const Journal& journal);

} // namespace orlen::Recovery

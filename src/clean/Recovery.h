#pragma once

#include "clean/CleanRecord.h"
#include "clean/Journal.h"

/// Finds out on the disk how far a clean-up or a restore came before its process ended. Blocks on the disk.
namespace orlen::Recovery {

/// What the clean-up moved to the Trash: the journal's items that lie in a Trash of theirs under an info file
/// that names their place. Dated by the last of these info files. Info files of items that never moved are
/// removed.
[[nodiscard]] CleanRecord recordOf(const Journal& journal);

/// Whether some of the journal's items can only be looked for later: they are not in the record, and the
/// folder that held them is not there, as on a disk that is not plugged in.
[[nodiscard]] bool isOutOfReach(const Journal& journal, const CleanRecord& record);

/// Marks the record's items that the restore put back: those that are no longer in the Trash, and whose place
/// holds them by their identity. Their info files are removed.
void markRestored(CleanRecord& record, const Journal& journal);

} // namespace orlen::Recovery

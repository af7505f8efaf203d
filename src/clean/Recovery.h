#pragma once

#include "clean/CleanRecord.h"
#include "clean/Journal.h"

/// Determines from the disk how far a clean-up or restore got before its process ended. Blocks on the disk.
namespace orlen::Recovery {

/// What the clean-up moved to the Trash: the journal's items found in a Trash with an info file that names
/// their place. Dated by the latest of these info files. Info files of items that never moved are removed.
[[nodiscard]] CleanRecord recordOf(const Journal& journal);

/// Whether some of the journal's items can only be looked for later: they are not in the record, and their
/// folder is missing, as on a disk that is unplugged.
[[nodiscard]] bool isOutOfReach(const Journal& journal, const CleanRecord& record);

/// Marks the items that the restore put back: no longer in the Trash, and at their place with the same
/// identity. Their info files are removed.
void markRestored(CleanRecord& record, const Journal& journal);

} // namespace orlen::Recovery

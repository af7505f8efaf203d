#pragma once

#include "model/FileEntry.h"
#include "model/KeptSets.h"

/// Why the photo that a set keeps is the one to keep. Pure; any thread.
namespace orlen::KeptReason {

/// In three words, from the notes of the others; the reason that weighs most if they differ.
[[nodiscard]] Text of(const KeptSet& set, const std::vector<FileEntry>& entries);

} // namespace orlen::KeptReason

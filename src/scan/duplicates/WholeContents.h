#pragma once

#include "scan/ScanProgress.h"
#include "scan/duplicates/ReadingThreads.h"
#include "scan/duplicates/Suspect.h"

#include <span>
#include <vector>

namespace orlen::WholeContents {

/// The sets of identical files within the groups; each group has files of one length. A file that cannot be
/// read or has changed since it was seen is in none. Blocks on the disk; incomplete if stopped.
///
/// A few files are compared directly. Many are compared in portions, and one file per distinct content in a
/// portion is hashed to find the same content in other portions: hashing every file takes several times as
/// long.
///
/// The progress of the duplicates counts the bytes of all these files. Files that turn out to differ count as
/// compared to their end.
[[nodiscard]] std::vector<std::vector<Suspect>> identical(ReadingThreads& threads, ScanProgress& progress,
                                                          std::span<const std::span<Suspect>> groups);

} // namespace orlen::WholeContents

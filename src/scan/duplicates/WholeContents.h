#pragma once

#include "scan/duplicates/ReadingThreads.h"
#include "scan/duplicates/Suspect.h"

#include <span>
#include <vector>

namespace orlen::WholeContents {

/// The sets of identical files within the groups, each of which holds files of one length; a file that cannot
/// be read or changed since it was seen is in none. Blocks on the disk; empty or incomplete when stopped.
///
/// Few files are compared side by side. Many files are compared in portions, and one file of each kind of
/// content in a portion is hashed to find the same content in the others: hashing every file takes several
/// times as long.
[[nodiscard]] std::vector<std::vector<Suspect>> identical(ReadingThreads& threads,
                                                          std::span<const std::span<Suspect>> groups);

} // namespace orlen::WholeContents

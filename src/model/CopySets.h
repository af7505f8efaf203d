#pragma once

#include "model/FileEntry.h"

#include <set>
#include <span>
#include <string>
#include <vector>

namespace orlen {

struct Finding;

/// A file that makes others dispensable, and those. It does not move together with one of them, so that not
/// all of them go.
struct CopySet {
    KeptFile kept;
    std::vector<std::string> copies; ///< their paths

    friend bool operator==(const CopySet&, const CopySet&) = default;
};

/// Pure; any thread.
namespace CopySets {

/// The sets that the findings tell of.
[[nodiscard]] std::vector<CopySet> of(const std::vector<const Finding*>& findings);

/// The sets of which a file lies at or below one of these paths.
[[nodiscard]] std::vector<CopySet> about(std::vector<CopySet> sets, const std::vector<std::string>& paths);

/// Of the entries, none of which lies in another, those that have to stay: moving them would take the kept
/// file of a set along with one of its copies. A folder with both in it may move as a whole.
[[nodiscard]] std::set<std::string> staying(const std::vector<CopySet>& sets,
                                            std::span<const FileEntry> entries);

/// Has the copies among the entries depend on the kept file, where they depend on none.
void tie(std::vector<FileEntry>& entries, const std::vector<CopySet>& sets);

} // namespace CopySets

} // namespace orlen

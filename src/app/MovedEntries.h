#pragma once

#include "model/Finding.h"

#include <set>
#include <string>
#include <vector>

namespace orlen {

/// Entries that clean-ups took out of the results, under their findings, to be listed again once their items
/// are put back.
struct MovedEntries {
    std::vector<Finding> findings;
    std::set<std::string> selection; ///< of their paths, the ones that were selected

    /// Whether the entry, or the file it depends on, is at or below one of these places. Pure.
    [[nodiscard]] static bool isAbout(const FileEntry& entry, const std::set<std::string>& places);

    /// Moves the entries about these places out of `from` and returns their paths; `selected` says which were
    /// selected. Pure.
    std::set<std::string> take(std::vector<Finding>& from, const std::set<std::string>& selected,
                               const std::set<std::string>& places);

    /// Copies of the entries about these places. Pure.
    [[nodiscard]] MovedEntries about(const std::set<std::string>& places) const;

    /// Keeps only what the scan saw; at `places`, where items were put back, but for the time of change,
    /// which moving has set and which is noted anew. Blocks on the disk; any thread.
    void keepUnchanged(const std::set<std::string>& places);

    /// Forgets what is in `wanted` too, and returns those of its entries that were still here. Pure.
    [[nodiscard]] MovedEntries release(MovedEntries wanted);
};

} // namespace orlen

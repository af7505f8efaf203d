#pragma once

#include "model/CopySets.h"
#include "model/PathTree.h"

#include <set>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// Which listed entries are not ticked together, because moving both would take the kept file of a set along
/// with one of its copies. A plain value; any thread.
class KeptTies {
public:
    KeptTies() = default;
    /// `listed` are the selectable paths.
    KeptTies(const std::vector<CopySet>& sets, const PathTree& listed);

    /// Unticks the copies of kept files at or below `last`, which was ticked last, and all other kept files
    /// whose copies are ticked. Whether anything was unticked. `listed` is what this was made for.
    bool keepApart(std::set<std::string>& ticked, const PathTree& listed, std::string_view last = {}) const;

private:
    /// Nodes of the nearest entries that take the kept file or a copy along.
    struct Tie {
        int kept = PathTree::kNone;
        int copy = PathTree::kNone;
    };

    std::vector<Tie> m_ties;
};

} // namespace orlen

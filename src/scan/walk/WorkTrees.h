#pragma once

#include "scan/Cand.h"
#include "scan/tree/TreeScan.h"

#include <functional>
#include <set>
#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// The folders of one walk that hold a repository. The home folder is never one: people keep their settings
/// in a repository there, not their files.
class WorkTrees {
public:
    /// `found`: those below the roots. Also looks whether a root lies in one. Blocks on the disk.
    WorkTrees(std::set<std::string, std::less<>> found, std::span<const TreeRoot> roots);

    /// Says of each file whether it lies in one.
    void mark(std::vector<Cand>& cands) const;

private:
    [[nodiscard]] bool hold(std::string_view path) const;

    std::set<std::string, std::less<>> m_folders;
};

} // namespace orlen

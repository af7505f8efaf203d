#pragma once

#include "tools/TreeNode.h"

#include <stop_token>
#include <string>
#include <vector>

/// Measures what the disk map shows. Blocks on the disk: never call from the main thread.
namespace orlen::DiskMap {

/// The children of a folder that occupy space, hidden ones included, largest first, then by name. Links are
/// not followed, except to reach the folder itself; a file with several names counts once. All but the 60
/// largest are combined into one node at the end, along with every child whose name is not UTF-8, since it
/// can neither be shown nor opened. Mounted network and pseudo file systems are not entered. Empty if the
/// folder cannot be read; a stopped measurement returns what it has.
[[nodiscard]] std::vector<TreeNode> children(const std::string& folder, const std::stop_token& stop = {});

} // namespace orlen::DiskMap

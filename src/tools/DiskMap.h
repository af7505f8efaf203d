#pragma once

#include "tools/TreeNode.h"

#include <stop_token>
#include <string>
#include <vector>

/// Measures what the disk map shows. Blocks on the disk: never call from the main thread.
namespace orlen::DiskMap {

/// The children of a folder that occupy space, hidden ones included, and the folders that could not be read;
/// largest first, then by name. Links are not followed, except to reach the folder itself; a file with
/// several names counts once. All but 60 are combined into one node at the end; of the 60, 8 are kept for
/// unread folders. Mounted network and pseudo file systems are not entered. Empty if the folder cannot be
/// read; a stopped measurement returns what it has.
[[nodiscard]] std::vector<TreeNode> children(const std::string& folder, const std::stop_token& stop = {});

/// The same nodes for a document, which cannot hold names that are not UTF-8: those join the combined node.
[[nodiscard]] std::vector<TreeNode> nameable(std::vector<TreeNode> nodes, const std::string& folder);

} // namespace orlen::DiskMap

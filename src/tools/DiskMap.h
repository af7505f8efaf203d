#pragma once

#include "tools/TreeNode.h"

#include <stop_token>
#include <string>
#include <vector>

/// Measures what the disk map shows. Blocks on the disk: never call from the main thread.
namespace orlen::DiskMap {

/// The children of a folder that take space, hidden ones too, largest first and equal ones by name. Links
/// are no children; the folder itself may be reached through one. Beyond the 60 largest all are one grouped
/// node at the end, and so are those whose names are not UTF-8, however large and few: they could neither be
/// shown nor gone into. Mounted network and pseudo file systems are not entered. Empty for what is no
/// readable folder; a stopped measurement returns what it has.
[[nodiscard]] std::vector<TreeNode> children(const std::string& folder, const std::stop_token& stop = {});

} // namespace orlen::DiskMap

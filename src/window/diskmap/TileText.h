#pragma once

#include "tools/TreeNode.h"

#include <QString>

/// What is said of an item of the disk map. Pure; any thread.
namespace orlen::TileText {

/// Name, size and kind for a screen reader, and whether it could be read.
[[nodiscard]] QString spoken(const TreeNode& node);

} // namespace orlen::TileText

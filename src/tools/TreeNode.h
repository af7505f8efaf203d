#pragma once

#include "model/Message.h"

#include <cstdint>
#include <string>

namespace orlen {

/// One rectangle of the disk map: a child of the shown folder, or all its smaller children combined.
struct TreeNode {
    std::string name;      ///< file name; for the combined node, how many items it stands for, in English
    std::string path;      ///< absolute; for the combined node, the shown folder
    std::int64_t size = 0; ///< allocated bytes, for a folder those of its whole tree
    bool isDir = false;
    bool isOther = false;     ///< the smaller children combined
    std::int64_t smaller = 0; ///< how many those are; else 0

    /// Whether the map can open it.
    [[nodiscard]] bool isEnterable() const { return isDir && !isOther; }
    /// What people read: the same as the name, in their language.
    [[nodiscard]] Message title() const;

    friend bool operator==(const TreeNode&, const TreeNode&) = default;
};

} // namespace orlen

#pragma once

#include <cstdint>
#include <string>

namespace orlen {

/// One rectangle of the disk map: a child of the folder shown, or all its smaller children together.
struct TreeNode {
    std::string name;      ///< file name; of the grouped node how many items it stands for
    std::string path;      ///< absolute; of the grouped node the folder shown
    std::int64_t size = 0; ///< allocated bytes, of a folder those of its whole tree
    bool isDir = false;
    bool isOther = false; ///< stands for the smaller children

    /// Whether the map can go into it.
    [[nodiscard]] bool isEnterable() const { return isDir && !isOther; }

    friend bool operator==(const TreeNode&, const TreeNode&) = default;
};

} // namespace orlen

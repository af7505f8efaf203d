#pragma once

#include "model/Message.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>

namespace orlen {

/// One rectangle of the disk map: a child of the shown folder, or all its smaller children combined.
struct TreeNode {
    /// How much of a folder could be read; its size counts only that.
    enum class Reading : std::uint8_t { whole, partly, none };

    std::string name;      ///< file name; for the combined node, how many items it stands for, in English
    std::string path;      ///< absolute; for the combined node, the shown folder
    std::int64_t size = 0; ///< allocated bytes, for a folder those of its whole tree
    bool isDir = false;
    bool isOther = false;     ///< the smaller children combined
    std::int64_t smaller = 0; ///< how many those are; else 0
    Reading reading = Reading::whole;
    std::optional<FileStamp> stamp;  ///< what had the name when it was measured; absent for the combined node
    std::optional<TimePoint> newest; ///< last change of a file, for a folder of any below; absent without one

    /// Whether the map can open it.
    [[nodiscard]] bool isEnterable() const { return isDir && !isOther; }
    /// Whether the history and a document could hold the name: it is valid UTF-8.
    [[nodiscard]] bool isNameable() const;
    /// What people read: the same as the name, in their language.
    [[nodiscard]] Message title() const;

    friend bool operator==(const TreeNode&, const TreeNode&) = default;
};

} // namespace orlen

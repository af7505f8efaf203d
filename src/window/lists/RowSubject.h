#pragma once

#include "model/FileEntry.h"

#include <optional>
#include <string>

namespace orlen {

/// The file or folder that a row stands for, and what can be done with it there.
struct RowSubject {
    std::string path;
    bool isThere = true;            ///< whether it can be previewed and shown in the file manager
    bool isOffered = true;          ///< whether Orlen may offer to move it
    bool isTickable = false;        ///< whether the rows of its folder can be ticked
    bool isCopy = false;            ///< whether it is of a set, of which a folder's files may be kept
    std::optional<FileEntry> entry; ///< with it, the menu offers to move it to the Trash
};

} // namespace orlen

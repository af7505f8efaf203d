#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <vector>

namespace orlen {

/// Where a path really leads: links among its folders resolved, the last component left alone. Resolved just
/// before a move, checked for safety again, then opened without following links, so that a link slipped in
/// after the check is an error, not a detour. Blocks on the disk; any thread.
struct RealPath {
    std::string folder;               ///< the deepest existing folder, without links
    std::vector<std::string> missing; ///< folders below it that do not exist yet
    std::string name;                 ///< the last component

    [[nodiscard]] std::string text() const;
    /// The folder that contains, or will contain, the name.
    [[nodiscard]] std::string parent() const;

    /// EPERM: the path, or where it really leads, is protected. EINVAL: the path does not name an entry.
    /// ENOENT or another errno: its folders cannot be resolved.
    [[nodiscard]] static Result<RealPath> of(const std::string& path);

    /// Opens the folder of the name; ENOENT if it is missing.
    [[nodiscard]] Result<UniqueFd> openParent() const;
    /// The same, creating missing folders: private in and below hidden folders, else by the user's defaults.
    [[nodiscard]] Result<UniqueFd> openOrMakeParent() const;
};

} // namespace orlen

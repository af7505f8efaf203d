#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <vector>

namespace orlen {

/// Where a path really leads: the links among its folders resolved, its last component left alone. Made just
/// before a move, asked for its safety again, and then opened without following any link, so that a link put
/// in the way after the question is an error and not a detour. Blocks on the disk; any thread.
struct RealPath {
    std::string folder;               ///< the deepest folder of the path that exists, without links
    std::vector<std::string> missing; ///< folders below it that do not exist yet
    std::string name;                 ///< the last component

    [[nodiscard]] std::string text() const;
    /// The folder that holds, or will hold, the name.
    [[nodiscard]] std::string parent() const;

    /// EPERM: the path, or what it really leads to, is protected. EINVAL: no path that names an entry. ENOENT
    /// or another errno: its folders cannot be resolved.
    [[nodiscard]] static Result<RealPath> of(const std::string& path);

    /// The folder that holds the name; ENOENT when it is missing.
    [[nodiscard]] Result<UniqueFd> openParent() const;
    /// The same, made with its missing parents: for the user alone in and below hidden folders, else as the
    /// user's defaults say.
    [[nodiscard]] Result<UniqueFd> openOrMakeParent() const;
};

} // namespace orlen

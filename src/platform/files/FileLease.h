#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

namespace orlen {

/// Keeps others from opening a regular file for writing while it is held. Whoever tries waits until it is let
/// go, so hold it for one rename and no longer. Only for files of the user's own on a local disk.
class FileLease {
public:
    /// EBUSY: a program has the file open for writing. Where the file cannot be opened, or the file system
    /// knows no leases, an empty lease that keeps nobody off. A link is not followed. Any thread.
    [[nodiscard]] static Result<FileLease> take(int folder, const char* name);
    [[nodiscard]] static FileLease none() { return {}; }

private:
    FileLease() = default;
    UniqueFd m_file;
};

} // namespace orlen

#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

namespace orlen {

/// While held, nobody can open the file for writing. Whoever tries waits until it is released, so hold it for
/// one rename and no longer. Only for the user's own files on a local disk.
class FileLease {
public:
    /// EBUSY: a program has the file open for writing. If the file cannot be opened or the file system has no
    /// leases, returns an empty lease that blocks nobody. A link is not followed. Any thread.
    [[nodiscard]] static Result<FileLease> take(int folder, const char* name);
    [[nodiscard]] static FileLease none() { return {}; }

private:
    FileLease() = default;
    UniqueFd m_file;
};

} // namespace orlen

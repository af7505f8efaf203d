#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <utility>

namespace orlen {

/// An advisory lock on an empty file, held until destroyed. The file is created if missing and left behind:
/// removing it would let two processes each lock a file of that name.
class FileLock {
public:
    /// Takes the lock without waiting. EWOULDBLOCK if another process holds it; any other errno says why the
    /// file cannot be created. A link in the last component is not followed.
    [[nodiscard]] static Result<FileLock> take(const std::string& path);

private:
    explicit FileLock(UniqueFd file) : m_file(std::move(file)) {}
    UniqueFd m_file;
};

} // namespace orlen

#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <utility>

namespace orlen {

/// An advisory lock on an empty file, held until destroyed. The file is made when it is missing and stays
/// behind: to remove it would let two processes each hold a file of that name.
class FileLock {
public:
    /// Takes the lock without waiting. EWOULDBLOCK when another process holds it; anything else tells why the
    /// file cannot be made. A link in the last component is not followed.
    [[nodiscard]] static Result<FileLock> take(const std::string& path);

private:
    explicit FileLock(UniqueFd file) : m_file(std::move(file)) {}
    UniqueFd m_file;
};

} // namespace orlen

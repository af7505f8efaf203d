#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <utility>

namespace orlen {

/// An advisory lock on a folder itself, held until destroyed; no extra file is made.
class FolderLock {
public:
    /// Takes the lock without waiting. EWOULDBLOCK when another process holds it, and only then; anything
    /// else tells why the folder cannot be opened or its file system has no locks.
    [[nodiscard]] static Result<FolderLock> take(const std::string& folder);

private:
    explicit FolderLock(UniqueFd folder) : m_folder(std::move(folder)) {}
    UniqueFd m_folder;
};

} // namespace orlen

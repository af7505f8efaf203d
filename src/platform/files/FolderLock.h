#pragma once

#include "platform/files/UniqueFd.h"
#include "platform/values/Result.h"

#include <string>
#include <utility>

namespace orlen {

/// An advisory lock on the folder itself, without an extra file; held until destroyed.
class FolderLock {
public:
    /// Takes the lock without waiting. EWOULDBLOCK only if another process holds it; any other errno says why
    /// the folder cannot be opened or locked.
    [[nodiscard]] static Result<FolderLock> take(const std::string& folder);

private:
    explicit FolderLock(UniqueFd folder) : m_folder(std::move(folder)) {}
    UniqueFd m_folder;
};

} // namespace orlen

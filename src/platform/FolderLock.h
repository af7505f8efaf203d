#pragma once

#include "platform/UniqueFd.h"

#include <optional>
#include <string>

namespace orlen {

/// An advisory lock on a folder itself, held until destroyed; no extra file is made.
class FolderLock {
public:
    /// Takes the lock without waiting; nothing when another process holds it or the folder cannot be opened.
    [[nodiscard]] static std::optional<FolderLock> take(const std::string& folder);

private:
    explicit FolderLock(UniqueFd folder) : m_folder(std::move(folder)) {}
    UniqueFd m_folder;
};

} // namespace orlen

#pragma once

#include "platform/values/Time.h"

#include <stop_token>
#include <string>

namespace orlen {

/// What a folder's names and times say about who still needs it. No file is opened. A plain value.
struct FolderLook {
    TimePoint newest; ///< last change of the folder or of anything below it
    bool isComplete =
        false; ///< false: too large, not readable everywhere, partly on another disk, or stopped
    /// Whether anything below it is the user's own: saved games, profiles, wallets, keys, a repository.
    bool isPersonal = false;
    bool isWebApp = false; ///< has what every Electron application has

    /// Blocks on the disk; any thread. Links are not followed.
    [[nodiscard]] static FolderLook at(const std::string& path, const std::stop_token& stop);
};

} // namespace orlen

#pragma once

#include "tools/apps/AppInfo.h"
#include "tools/apps/Launcher.h"

#include <stop_token>
#include <vector>

/// Applications that the user has put there and may take away: each source on its own. Blocks on the disk.
namespace orlen::RemovableApps {

/// AppImages in the folders where users keep them. Links to them are passed over.
[[nodiscard]] std::vector<AppInfo> appImages(const std::vector<Launcher>& launchers,
                                             const std::stop_token& stop);

/// Folders that hold a program with all that it needs. What starts one of `images` alone makes no folder one.
[[nodiscard]] std::vector<AppInfo> folders(const std::vector<Launcher>& launchers,
                                           const std::vector<AppInfo>& images);

} // namespace orlen::RemovableApps

#pragma once

#include "tools/apps/AppInfo.h"
#include "tools/apps/Launcher.h"

#include <stop_token>
#include <vector>

/// Applications the user installed by hand and may remove, by kind. Blocks on the disk.
namespace orlen::RemovableApps {

/// AppImages in the folders where users keep them. Links are skipped.
[[nodiscard]] std::vector<AppInfo> appImages(const std::vector<Launcher>& launchers,
                                             const std::stop_token& stop);

/// Folders with a self-contained program. A launcher of one of `images` does not make its folder one.
[[nodiscard]] std::vector<AppInfo> folders(const std::vector<Launcher>& launchers,
                                           const std::vector<AppInfo>& images);

} // namespace orlen::RemovableApps

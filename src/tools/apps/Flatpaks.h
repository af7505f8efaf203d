#pragma once

#include "tools/apps/AppInfo.h"

#include <string>
#include <vector>

/// Applications managed by Flatpak, and the data of removed ones. Blocks on the disk.
namespace orlen::Flatpaks {

[[nodiscard]] std::vector<AppInfo> installed();

/// Data folders of applications that are no longer installed.
[[nodiscard]] std::vector<AppInfo> removed();

/// Whether any installation has the application, or cannot be read.
[[nodiscard]] bool isInstalled(const std::string& identifier);

} // namespace orlen::Flatpaks

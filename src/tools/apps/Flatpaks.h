#pragma once

#include "tools/apps/AppInfo.h"

#include <string>
#include <vector>

/// Applications that Flatpak keeps, and the data of those that it no longer does. Blocks on the disk.
namespace orlen::Flatpaks {

[[nodiscard]] std::vector<AppInfo> installed();

/// Data folders of applications that no installation has.
[[nodiscard]] std::vector<AppInfo> removed();

/// Whether any installation has the application, or cannot be asked.
[[nodiscard]] bool isInstalled(const std::string& identifier);

} // namespace orlen::Flatpaks

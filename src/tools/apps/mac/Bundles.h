#pragma once

#include "tools/apps/AppInfo.h"
#include "tools/apps/Launcher.h"

#include <string_view>
#include <vector>

/// Application bundles of macOS.
namespace orlen::Bundles {

inline constexpr std::string_view kSuffix = ".app";

/// The bundles in "/Applications" and in the home folder's "Applications". Blocks on the disk.
[[nodiscard]] std::vector<AppInfo> installed(const std::vector<Launcher>& launchers);

} // namespace orlen::Bundles

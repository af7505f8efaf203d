#pragma once

#include "tools/apps/AppInfo.h"
#include "tools/apps/Launcher.h"

#include <functional>
#include <stop_token>
#include <string>
#include <vector>

/// Finds launchers. Blocks on the disk.
namespace orlen::Launchers {

/// The user's own: from the menus, the desktop and autostart, folder by folder, sorted by path. Links are
/// skipped.
[[nodiscard]] std::vector<Launcher> ofUser();

/// Those for all users, from packages and everything else that adds to the menus. Links are followed.
[[nodiscard]] std::vector<Launcher> ofSystem(const std::stop_token& stop);

/// Those that start the application at this path.
[[nodiscard]] std::vector<const Launcher*> starting(const std::vector<Launcher>& launchers,
                                                    const std::string& app);

/// Fills in an application from its launchers. The first non-empty value counts, and only where the
/// application has none yet.
void describe(AppInfo& app, const std::vector<const Launcher*>& launchers);

} // namespace orlen::Launchers

#pragma once

#include "tools/apps/AppInfo.h"
#include "tools/apps/Launcher.h"

#include <functional>
#include <stop_token>
#include <string>
#include <vector>

/// Where launchers lie. Blocks on the disk.
namespace orlen::Launchers {

/// All of the user's own: of the menus, on the desktop, and those started at login. In the order of these
/// folders, and by path in each. Links are no launchers.
[[nodiscard]] std::vector<Launcher> ofUser();

/// Those for all users, of the distribution's packages and of what else puts its menus there, links followed.
[[nodiscard]] std::vector<Launcher> ofSystem(const std::stop_token& stop);

/// Those of the list that start the application at the path.
[[nodiscard]] std::vector<const Launcher*> starting(const std::vector<Launcher>& launchers,
                                                    const std::string& app);

/// Adds to an application what launchers say about it: of several answers the first that is not empty, and
/// only where the application has none yet.
void describe(AppInfo& app, const std::vector<const Launcher*>& launchers);

} // namespace orlen::Launchers

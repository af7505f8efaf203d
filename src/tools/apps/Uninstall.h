#pragma once

#include "model/CleanPlan.h"
#include "tools/apps/AppInfo.h"

#include <span>

/// What removing an application would move to the Trash. Pure; any thread.
namespace orlen::Uninstall {

/// "Uninstall " and the name, with one section for the application and, when there are leftovers, one for
/// them. Of the data of a removed Flatpak the application's section is titled "App data". The application
/// must be removable.
[[nodiscard]] CleanPlan plan(const AppInfo& app, std::span<const FileEntry> leftovers);

} // namespace orlen::Uninstall

#pragma once

#include "model/CleanPlan.h"
#include "tools/apps/AppInfo.h"

#include <span>

/// The plan for removing an application. Pure; any thread.
namespace orlen::Uninstall {

/// Titled "Uninstall" with the name, with a section for the application and, if there are leftovers, one for
/// them. For the data of a removed Flatpak the first section is "App data". The application must be
/// removable.
[[nodiscard]] CleanPlan plan(const AppInfo& app, std::span<const FileEntry> leftovers);

} // namespace orlen::Uninstall

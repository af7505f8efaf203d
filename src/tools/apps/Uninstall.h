#pragma once

#include "model/CleanPlan.h"
#include "tools/apps/AppInfo.h"

#include <span>
#include <vector>

/// The plan for removing an application. Pure; any thread.
namespace orlen::Uninstall {

/// Titled "Uninstall" with the name, with a section for the application and, if there are leftovers, one for
/// them. For the data of a removed Flatpak the first section is "App data". The application must be
/// removable.
[[nodiscard]] CleanPlan plan(const AppInfo& app, std::span<const FileEntry> leftovers);

/// One of several applications to remove, with those of its leftovers that are surely its own.
struct Removal {
    AppInfo app;
    std::vector<FileEntry> leftovers;
    bool isRunning = false;
};

/// The plan for some: a section for each, titled with its name, which says so when it is still running. No
/// path comes twice.
[[nodiscard]] CleanPlan plan(std::span<const Removal> removals);

} // namespace orlen::Uninstall

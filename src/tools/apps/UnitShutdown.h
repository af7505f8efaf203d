#pragma once

#include "model/FileEntry.h"

#include <span>
#include <string>
#include <vector>

/// Switches off systemd units of the user before their files are moved: without its file a running unit could
/// no longer be switched off, and links that start it would lead nowhere.
namespace orlen::UnitShutdown {

/// Stops and disables each entry that is a unit's file. Returns the names of those that still run or could
/// not be disabled. Blocks on child processes; any thread.
[[nodiscard]] std::vector<std::string> run(std::span<const FileEntry> entries);

} // namespace orlen::UnitShutdown

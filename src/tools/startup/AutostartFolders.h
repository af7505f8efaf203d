#pragma once

#include "platform/files/Places.h"

#include <string>
#include <vector>

/// The desktop's autostart folders.
namespace orlen::AutostartFolders {

/// The user's own, most important first; the program writes to the first. Pure.
[[nodiscard]] std::vector<std::string> ofUser(const Places& places);
/// Those for all users, most important first. Pure.
[[nodiscard]] std::vector<std::string> ofEverybody(const Places& places);

/// The first file of that name in the folders; empty if there is none. Blocks on the disk; any thread.
[[nodiscard]] std::string find(const std::vector<std::string>& folders, const std::string& name);

} // namespace orlen::AutostartFolders

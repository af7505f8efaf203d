#pragma once

#include "platform/files/Places.h"

#include <string>
#include <vector>

/// Where the desktop's autostart entries lie.
namespace orlen::AutostartFolders {

/// The user's own, the most important first; the first is where the program writes. Pure.
[[nodiscard]] std::vector<std::string> ofUser(const Places& places);
/// Those of all users, the most important first. Pure.
[[nodiscard]] std::vector<std::string> ofEverybody(const Places& places);

/// The first file of that name in the folders; empty when there is none. Blocks on the disk; any thread.
[[nodiscard]] std::string find(const std::vector<std::string>& folders, const std::string& name);

} // namespace orlen::AutostartFolders

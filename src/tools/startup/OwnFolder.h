#pragma once

#include <string>

/// The user's folders that hold switches. Blocks on the disk; any thread.
namespace orlen::OwnFolder {

/// Whether the user can write into the folder, or make it where it is missing.
[[nodiscard]] bool canHold(const std::string& path);

} // namespace orlen::OwnFolder

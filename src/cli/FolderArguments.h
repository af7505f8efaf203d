#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orlen {

class Session;

/// Folders given on the command line.
namespace FolderArguments {

/// Resolves the folders. Prints a complaint and returns nothing if one is unreadable or protected. Blocks on
/// the disk.
[[nodiscard]] std::optional<std::vector<std::string>> checked(Session& session,
                                                              const std::vector<std::string>& arguments);

} // namespace FolderArguments
} // namespace orlen

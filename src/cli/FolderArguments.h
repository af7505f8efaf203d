#pragma once

#include <optional>
#include <string>
#include <vector>

namespace orlen {

class Session;

/// Folders to look into, as they are typed.
namespace FolderArguments {

/// The folders that are meant; nothing when one of them is none that may be read, which has been said. Blocks
/// on the disk.
[[nodiscard]] std::optional<std::vector<std::string>> checked(Session& session,
                                                              const std::vector<std::string>& arguments);

} // namespace FolderArguments
} // namespace orlen

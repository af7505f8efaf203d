#pragma once

#include <string>
#include <string_view>

/// Names for items in a Trash. Pure; any thread.
namespace orlen::TrashName {

/// The name of an item's info file.
[[nodiscard]] std::string infoName(std::string_view name);

/// The name for the n-th attempt, from 1. First the item's own; then with the number inserted before the
/// first dot: "a.tar.gz" gives "a.2.tar.gz", ".bashrc" gives ".2.bashrc", "plain" gives "plain.2". If the
/// info file's name would be too long for the file system, the name is shortened between two characters; its
/// extension stays.
[[nodiscard]] std::string candidate(std::string_view name, int attempt);

} // namespace orlen::TrashName

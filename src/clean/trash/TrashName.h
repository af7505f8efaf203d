#pragma once

#include <string>
#include <string_view>

/// Names for items in a Trash. Pure; any thread.
namespace orlen::TrashName {

/// The name of an item's info file.
[[nodiscard]] std::string infoName(std::string_view name);

/// The name to try at the n-th attempt, counted from 1. First the item's own; then with the number after a
/// dot before the first dot: "a.tar.gz" gives "a.2.tar.gz", ".bashrc" gives ".2.bashrc", "plain" gives
/// "plain.2". A name whose info file's name would not fit into a directory entry is shortened between two
/// characters; its extension stays.
[[nodiscard]] std::string candidate(std::string_view name, int attempt);

} // namespace orlen::TrashName

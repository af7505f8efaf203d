#pragma once

#include "platform/files/Places.h"

#include <string>
#include <vector>

namespace orlen::BookmarkedFolders {

/// The paths on this computer in the bookmarks of the file dialogs of GTK, then of KDE, in their order; those
/// the user has hidden are left out. Need not exist, and may come twice. Blocks on the disk.
[[nodiscard]] std::vector<std::string> paths(const Places& places);

} // namespace orlen::BookmarkedFolders

#pragma once

#include <string>
#include <vector>

namespace orlen::MapPlaces {

/// Where the disk map may start: the home folder first, then the disks of this computer and those attached,
/// then the folders among the user's bookmarks; each once. Blocks on the disk: never call from the main
/// thread.
[[nodiscard]] std::vector<std::string> folders();

} // namespace orlen::MapPlaces

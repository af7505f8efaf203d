#pragma once

#include "clean/HomeMounts.h"

#include <string>
#include <string_view>
#include <vector>

/// Finds the folders that sync programs mirror: what is moved out of them is deleted on the server and on the
/// user's other devices.
namespace orlen::SyncRoots {

/// Normalised paths, sorted, without repeats: what the programs' settings name, the default folders that
/// exist, and folders that hold a marker, down to two levels below the home folder. The home folder itself
/// and its parents are never among them: protecting them would protect everything. Never enters a foreign
/// mount and never follows a link while looking for markers. Blocks on the disk; any thread.
[[nodiscard]] std::vector<std::string> find(const Places& places, const HomeMounts& mounts);

/// Whether a file or folder of this name shows that the folder around it is mirrored.
[[nodiscard]] bool isMarker(std::string_view name);

} // namespace orlen::SyncRoots

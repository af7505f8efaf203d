#pragma once

#include "clean/HomeMounts.h"

#include <string>
#include <string_view>
#include <vector>

/// Finds the folders that sync programs mirror: what is moved out of them is deleted on the server and on the
/// user's other devices.
namespace orlen::SyncRoots {

/// Normalised paths, sorted and unique: folders named in settings, default folders that exist, and folders
/// with a marker at most two levels below the home folder. Never the home folder or its parents, since that
/// would protect everything. Never enters a foreign mount, and follows no links while looking for markers.
/// Blocks on the disk; any thread.
[[nodiscard]] std::vector<std::string> find(const Places& places, const HomeMounts& mounts);

/// Whether a file or folder of this name shows that the folder around it is mirrored.
[[nodiscard]] bool isMarker(std::string_view name);

} // namespace orlen::SyncRoots

#pragma once

#include "clean/HomeMounts.h"
#include "platform/files/Folder.h"

#include <string>
#include <vector>

/// Finds the folders that sync programs mirror: what is moved out of them is deleted on the server and on the
/// user's other devices.
namespace orlen::SyncRoots {

/// Normalised paths, sorted and unique: folders named in settings, default folders that exist, and folders
/// with a marker at most two levels below the home folder. Never the home folder or its parents, since that
/// would protect everything. Never enters a foreign mount, and follows no links while looking for markers.
/// Blocks on the disk; any thread.
[[nodiscard]] std::vector<std::string> find(const Places& places, const HomeMounts& mounts);

/// Whether this entry of an open folder shows that the folder is mirrored. Looks at the disk only for names
/// that do not say it all.
[[nodiscard]] bool isMarker(int folder, const FolderEntry& entry);

} // namespace orlen::SyncRoots

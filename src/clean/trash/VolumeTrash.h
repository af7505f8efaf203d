#pragma once

#include "clean/trash/TrashFolder.h"

#include <string>

/// The Trash at the top of a volume other than the home folder's. Any thread; blocks on the disk.
namespace orlen::VolumeTrash {

/// The user's Trash on the volume of an entry's folder, which is open as `folder` and has the link-free path
/// `path`: its place in a ".Trash" that the administrator shares out, else ".Trash-<uid>", made when missing
/// if asked for. EXDEV when neither can be used, or its items would lie where nothing may be touched.
[[nodiscard]] Result<TrashFolder> open(int folder, const std::string& path, TrashFolder::Missing missing);

} // namespace orlen::VolumeTrash

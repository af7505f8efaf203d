#pragma once

#include "clean/trash/TrashFolder.h"

#include <string>

/// The Trash at the top of a volume other than the home folder's. Any thread; blocks on the disk.
namespace orlen::VolumeTrash {

/// The user's Trash on the volume of an entry's folder, open as `folder` and with the link-free path `path`:
/// the user's folder in a ".Trash" shared by the administrator, else ".Trash-<uid>", created on request.
/// EXDEV if neither is usable, or it would lie where nothing may be touched.
[[nodiscard]] Result<TrashFolder> open(int folder, const std::string& path, TrashFolder::Missing missing);

} // namespace orlen::VolumeTrash

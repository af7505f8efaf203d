#pragma once

#include "scan/CategoryFolder.h"

#include <stop_token>
#include <vector>

/// What the category `system` of the storage breakdown consists of: everything no other category counts.
namespace orlen::SystemFolders {

/// Measures the top-level folders and files of the start-up volume, the home folder and its Trash, without
/// the folders of the other categories, as far as this user may read them. Only what lies on the home
/// folder's file system. Largest first. Blocks on the disk, for long if the disk is full of small files; a
/// stopped measurement returns what it has.
[[nodiscard]] std::vector<CategoryFolder> measure(const std::stop_token& stop = {});

} // namespace orlen::SystemFolders

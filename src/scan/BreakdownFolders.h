#pragma once

#include "model/OrlenCategory.h"

#include <string>
#include <vector>

namespace orlen {

class MountTable;
struct Places;

/// The folders behind the storage breakdown.
namespace BreakdownFolders {

struct Folder {
    OrlenCategory category;
    std::string path; ///< links resolved

    friend bool operator==(const Folder&, const Folder&) = default;
};

/// Every existing folder of the list once, in order; one listed for two categories counts for the first.
/// Folders on other file systems than the home folder are left out. Blocks on the disk.
[[nodiscard]] std::vector<Folder> find(const Places& places, const MountTable& mounts);

} // namespace BreakdownFolders
} // namespace orlen

#pragma once

#include "model/OrlenCategory.h"

#include <string>
#include <vector>

namespace orlen {

class MountTable;
struct Places;

/// The folders whose sizes make up the storage breakdown.
namespace BreakdownFolders {

struct Folder {
    OrlenCategory category;
    std::string path; ///< links resolved

    friend bool operator==(const Folder&, const Folder&) = default;
};

/// Every existing listed folder once, in the order of the list: one that is listed for two categories counts
/// for the first. Folders on another file system than the home folder's are left out. Blocks on the disk.
[[nodiscard]] std::vector<Folder> find(const Places& places, const MountTable& mounts);

} // namespace BreakdownFolders
} // namespace orlen

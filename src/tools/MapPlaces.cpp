#include "tools/MapPlaces.h"

#include "platform/desktop/BookmarkedFolders.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"
#include "platform/text/PathText.h"
#include "scan/tree/CurrentMounts.h"

#include <algorithm>
#include <set>

namespace orlen::MapPlaces {

namespace {

/// A drop-down list with more is no help.
constexpr std::size_t kMost = 40;

void add(std::vector<std::string>& folders, const std::string& folder)
{
    if (folders.size() < kMost && std::ranges::find(folders, folder) == folders.end() && isRealFolder(folder))
        folders.push_back(folder);
}

/// A disk that is mounted in several places counts where it was mounted first.
void addDisks(std::vector<std::string>& folders)
{
    std::set<std::string> disks;
    for (const Mount& mount : CurrentMounts::table()->mounts()) {
        const bool isDisk = mount.kind != MountClass::foreign && mount.source.starts_with("/dev/") &&
                            !mount.source.starts_with("/dev/loop");
        if (isDisk && !PathText::isAtOrBelow(mount.point, "/boot") && disks.insert(mount.source).second)
            add(folders, mount.point);
    }
}

} // namespace

std::vector<std::string> folders()
{
    const Places& places = Places::current();
    std::vector<std::string> folders{places.home};
    addDisks(folders);
    for (const std::string& bookmark : BookmarkedFolders::paths(places))
        add(folders, bookmark);
    return folders;
}

} // namespace orlen::MapPlaces

#include "tools/MapPlaces.h"

#include "platform/files/FileContent.h"
#include "platform/files/FileStatus.h"
#include "platform/files/Places.h"
#include "platform/text/FileUri.h"
#include "platform/text/PathText.h"
#include "scan/tree/CurrentMounts.h"

#include <algorithm>
#include <set>

namespace orlen::MapPlaces {

namespace {

constexpr std::size_t kLargestBookmarks = 1024UL * 1024;
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

/// A line is an address and, after a space, a name.
void addBookmarks(std::vector<std::string>& folders, std::string_view lines)
{
    while (!lines.empty()) {
        const std::string_view line = lines.substr(0, lines.find('\n'));
        lines.remove_prefix(std::min(lines.size(), line.size() + 1));
        if (const auto path = FileUri::path(line.substr(0, line.find(' '))))
            add(folders, PathText::standardized(*path));
    }
}

} // namespace

std::vector<std::string> folders()
{
    const Places& places = Places::current();
    std::vector<std::string> folders{places.home};
    addDisks(folders);
    for (const std::string& file : places.expand("{CONFIG}/gtk-3.0/bookmarks")) {
        if (const auto lines = readSmallFile(file, kLargestBookmarks))
            addBookmarks(folders, *lines);
    }
    return folders;
}

} // namespace orlen::MapPlaces

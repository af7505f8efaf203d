#include "scan/locations/OldDownloads.h"

#include "platform/FileStatus.h"
#include "scan/FS.h"
#include "scan/locations/SourceReader.h"
#include "scan/tree/CurrentMounts.h"

#include <chrono>
#include <optional>
#include <string>

namespace orlen::OldDownloads {

namespace {

constexpr std::chrono::days kUnused{30};

} // namespace

std::vector<FileEntry> entries(const SourceReader& reader, TimePoint now, const RecentDocuments& recent,
                               const std::stop_token& stop)
{
    const auto mounts = CurrentMounts::table();
    std::vector<std::string> paths;
    std::vector<TimePoint> dates;
    // Dating comes first: what is young need not be measured. What has no date is gone, and never old.
    for (std::string& path : reader.paths(FindingKind::oldDownloads)) {
        if (stop.stop_requested())
            break;
        const std::optional<TimePoint> opened = FS::lastOpened(path, recent, *mounts);
        if (!opened || *opened >= now - kUnused)
            continue;
        paths.push_back(std::move(path));
        dates.push_back(*opened);
    }
    std::vector<FileEntry> found = FS::entries(paths, {}, stop);
    for (std::size_t i = 0; i < found.size(); ++i) {
        found[i].lastOpened = dates[i];
        if (exists(found[i].path + "/.git"))
            found[i].note = "Contains a repository";
    }
    return found;
}

} // namespace orlen::OldDownloads

#include "scan/locations/OldDownloads.h"

#include "platform/files/FileStatus.h"
#include "scan/FS.h"
#include "scan/ScanTexts.h"
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
                               UnreadableFolders* unreadable, const std::stop_token& stop)
{
    const auto mounts = CurrentMounts::table();
    std::vector<std::string> paths;
    std::vector<FS::LastUse> uses;
    // Check dates first: young items need not be measured. Items without a date are gone, and never old.
    for (std::string& path : reader.paths(FindingKind::oldDownloads)) {
        if (stop.stop_requested())
            break;
        const auto use = FS::lastUse(path, recent, *mounts);
        if (!use || use->date >= now - kUnused)
            continue;
        paths.push_back(std::move(path));
        uses.push_back(*use);
    }
    std::vector<FileEntry> found = FS::entries(paths, {}, stop, unreadable);
    for (std::size_t i = 0; i < found.size(); ++i) {
        if (uses[i].isOpening)
            found[i].lastOpened = uses[i].date;
        if (exists(found[i].path + "/.git"))
            addNoteBefore(found[i], ScanTexts::kHoldsRepository);
    }
    return found;
}

bool isOld(const std::string& path, TimePoint now, const RecentDocuments& recent)
{
    const auto use = FS::lastUse(path, recent, *CurrentMounts::table());
    return use && use->date < now - kUnused;
}

} // namespace orlen::OldDownloads

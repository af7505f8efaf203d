#include "scan/FS.h"

#include "platform/desktop/RecentDocuments.h"
#include "platform/files/FileStatus.h"
#include "platform/files/MountTable.h"
#include "scan/ScanTexts.h"
#include "scan/tree/TreeMeasure.h"

#include <algorithm>

namespace orlen::FS {

std::int64_t allocatedSize(const std::string& path, const std::stop_token& stop)
{
    return measureTrees(std::span(&path, 1), stop).front().held;
}

std::optional<LastUse> lastUse(const std::string& path, const RecentDocuments& recent,
                               const MountTable& mounts)
{
    const auto status = statusOf(path);
    if (!status.ok())
        return std::nullopt;
    std::optional<TimePoint> opened = recent.lastVisit(path);
    const Mount* mount = mounts.byId(status.value().mount);
    if (mount == nullptr || mount->keepsAccessTimes)
        opened = std::max(opened.value_or(TimePoint::min()), status.value().accessed);
    return LastUse{opened.value_or(status.value().modified), opened.has_value()};
}

std::optional<TimePoint> lastOpened(const std::string& path, const RecentDocuments& recent,
                                    const MountTable& mounts)
{
    const auto use = lastUse(path, recent, mounts);
    return use ? std::optional(use->date) : std::nullopt;
}

void setSize(FileEntry& entry, const TreeSize& size)
{
    entry.size = size.freed;
    const bool isFile = entry.stamp && entry.stamp->type == FileType::regular;
    if (isFile && size.freed < size.held)
        addNote(entry, ScanTexts::kFreesNothing);
    else if (size.held - size.freed > size.held / 10)
        addNote(entry, Message{ScanTexts::kFreesPart, {{"size", Bytes{size.freed}}}});
}

FileEntry entry(const std::string& path, const std::vector<Message>& notes, const std::stop_token& stop,
                UnreadableFolders* unreadable)
{
    return std::move(entries(std::span(&path, 1), notes, stop, unreadable).front());
}

std::vector<FileEntry> entries(std::span<const std::string> paths, const std::vector<Message>& notes,
                               const std::stop_token& stop, UnreadableFolders* unreadable)
{
    std::vector<FileEntry> entries(paths.size());
    // Stamp before measuring: whatever changes meanwhile no longer matches its stamp.
    for (std::size_t i = 0; i < paths.size(); ++i) {
        if (const auto status = statusOf(paths[i]); status.ok()) {
            entries[i].modified = status.value().modified;
            entries[i].stamp = FileStamp::of(status.value());
        }
    }
    const std::vector<TreeSize> sizes = measureTrees(paths, stop, DiskWorkers::Priority::user, unreadable);
    for (std::size_t i = 0; i < paths.size(); ++i) {
        FileEntry& entry = entries[i];
        entry.path = paths[i];
        entry.notes = notes;
        setSize(entry, sizes[i]);
    }
    return entries;
}

} // namespace orlen::FS

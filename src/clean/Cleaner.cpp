#include "clean/Cleaner.h"

#include "clean/Safety.h"
#include "clean/trash/Trash.h"
#include "platform/PathText.h"

#include <algorithm>
#include <optional>

namespace orlen::Cleaner {

namespace {

/// The entries in path order without those that go along with another one. Only the last kept path is
/// compared: a name that sorts between a folder and its contents ("a", "a b", "a/x") lets the contents stay
/// in the list, where they are then found missing and counted as failed.
std::vector<FileEntry> withoutNested(std::vector<FileEntry> entries)
{
    std::stable_sort(entries.begin(), entries.end(),
                     [](const FileEntry& a, const FileEntry& b) { return a.path < b.path; });
    std::vector<FileEntry> kept;
    kept.reserve(entries.size());
    for (FileEntry& entry : entries) {
        const std::string last = kept.empty() ? std::string() : kept.back().path;
        const bool isNested = !last.empty() && entry.path.starts_with(last + "/");
        const bool isRepeated = !kept.empty() && entry.path == last;
        if (!isNested && !isRepeated)
            kept.push_back(std::move(entry));
    }
    return kept;
}

std::optional<TrashedItem> moveToTrash(const FileEntry& entry)
{
    // The history is text: an item whose name it cannot hold could never be put back.
    if (!PathText::isValidUtf8(entry.path) || Safety::isProtected(entry.path))
        return std::nullopt;
    auto trashed = Trash::moveIn(entry.path, entry.size);
    if (!trashed.ok())
        return std::nullopt;
    return TrashedItem{entry.path, std::move(trashed).value(), entry.size, false};
}

bool putBack(const TrashedItem& item, TimePoint cleaned)
{
    return !item.trashed.empty() && !Safety::isProtected(item.original) &&
           Trash::moveBack(item.trashed, item.original, cleaned).ok();
}

} // namespace

CleanRecord run(std::vector<FileEntry> entries, const std::string& title, const Progress& progress,
                const std::stop_token& stop)
{
    Safety::refresh();
    const std::vector<FileEntry> kept = withoutNested(std::move(entries));
    const int total = static_cast<int>(kept.size());
    CleanRecord record;
    record.id = Uuid::random();
    record.title = title;
    for (int index = 0; index < total && !stop.stop_requested(); ++index) {
        const FileEntry& entry = kept[static_cast<std::size_t>(index)];
        progress(index, total, std::string(PathText::lastComponent(entry.path)));
        if (auto item = moveToTrash(entry))
            record.items.push_back(*std::move(item));
        else
            ++record.failed;
    }
    progress(total, total, "");
    record.date = std::chrono::system_clock::now();
    return record;
}

Restored restore(CleanRecord record, const std::stop_token& stop)
{
    Safety::refresh();
    Restored result;
    for (TrashedItem& item : record.items) {
        if (stop.stop_requested())
            break;
        if (item.restored)
            continue;
        item.restored = putBack(item, record.date);
        ++(item.restored ? result.restored : result.failed);
    }
    result.record = std::move(record);
    return result;
}

} // namespace orlen::Cleaner

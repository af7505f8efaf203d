#include "scan/locations/SourceReader.h"

#include "clean/Safety.h"
#include "platform/files/Folder.h"
#include "platform/files/FolderEntries.h"
#include "platform/files/Places.h"
#include "platform/files/Reachability.h"
#include "platform/text/PathText.h"
#include "scan/FS.h"
#include "scan/ScanProgress.h"
#include "scan/ScanTexts.h"
#include "scan/UnreadableFolders.h"
#include "scan/walk/WalkRules.h"

#include <algorithm>
#include <cerrno>
#include <functional>
#include <iterator>

namespace orlen {

namespace {

/// The folder, unless it or a folder between it and the home folder is a link. The home folder itself and its
/// parents may be links.
Result<UniqueFd> openWithoutLinks(const std::string& path)
{
    const std::string& home = Places::current().home;
    if (!PathText::isAtOrBelow(path, home))
        return openFolder(path);
    if (const auto reachable = Reachability::check(path); !reachable.ok())
        return Errno{reachable.error()};
    auto folder = openFolder(home + "/.");
    for (const std::string_view component :
         PathText::components(std::string_view(path).substr(home.size()))) {
        if (folder.ok())
            folder = openUnlinkedFolderAt(folder.value().get(), std::string(component).c_str());
    }
    return folder.ok() ? openFolderAt(folder.value().get(), ".") : std::move(folder);
}

Result<UniqueFd> openToRead(const Source& folder)
{
    return folder.row->layout == Layout::mac ? openFolder(folder.path + "/.") : openWithoutLinks(folder.path);
}

bool isLink(int folder, const FolderEntry& entry)
{
    if (entry.type != EntryType::unknown)
        return entry.type == EntryType::link;
    const auto status = statusAt(folder, entry.name);
    return !status.ok() || status.value().type == FileType::link;
}

/// Names that are never entries of a row.
bool isSkipped(const SourceRow& row, std::string_view name)
{
    if (row.reading == Reading::children && (name == ".DS_Store" || name == ".localized"))
        return true;
    return row.layout == Layout::freedesktop && (name == ".Trash" || name.starts_with(".Trash-"));
}

bool mayBeOffered(const SourceRow& row, const std::string& path)
{
    return PathText::isValidUtf8(path) && !Safety::isProtected(path) &&
           (row.offered == Offered::all || isDeletable(path)) &&
           (row.kind != FindingKind::caches || row.maybeEnvironment || !WalkRules::isEnvironment(path));
}

bool isLinkFree(const Source& single)
{
    if (single.row->layout == Layout::mac)
        return true;
    const auto status = statusOf(single.path);
    return status.ok() && status.value().type != FileType::link &&
           openWithoutLinks(std::string(PathText::parent(single.path))).ok();
}

/// Whether the folder would be listed, and the name in it.
bool isReadable(const Source& folder, const std::string& child)
{
    const std::string_view name = PathText::lastComponent(child);
    const auto status = statusOf(child);
    return !isSkipped(*folder.row, name) && openToRead(folder).ok() && status.ok() &&
           (folder.row->layout == Layout::mac || status.value().type != FileType::link);
}

bool isLargeEnough(const SourceRow& row, const FileEntry& entry)
{
    return entry.size >= std::max<std::int64_t>(row.minimum, 1);
}

void append(std::vector<FileEntry>& entries, std::vector<FileEntry> more)
{
    entries.insert(entries.end(), std::make_move_iterator(more.begin()), std::make_move_iterator(more.end()));
}

} // namespace

SourceReader::SourceReader(ScanProgress& progress, std::stop_token stop, UnreadableFolders* unreadable)
    : m_progress(progress), m_stop(std::move(stop)), m_unreadable(unreadable),
      m_map(Places::current(), unreadable)
{
}

std::vector<FileEntry> SourceReader::entries(FindingKind kind) const
{
    std::vector<FileEntry> all;
    for (const SourceRow& row : sourceRows()) {
        if (row.kind != kind)
            continue;
        if (row.reading == Reading::children)
            append(all, children(row));
        for (const Source* source : m_map.of(row)) {
            if (row.reading == Reading::single)
                append(all, single(*source));
        }
    }
    return all;
}

std::vector<std::string> SourceReader::paths(FindingKind kind) const
{
    std::vector<std::string> all;
    for (const SourceRow& row : sourceRows()) {
        if (row.kind != kind)
            continue;
        for (const Source* source : m_map.of(row)) {
            std::vector<std::string> found = pathsIn(*source);
            all.insert(all.end(), std::make_move_iterator(found.begin()),
                       std::make_move_iterator(found.end()));
        }
    }
    return all;
}

std::optional<SourceReader::Holding> SourceReader::holding(const std::string& path) const
{
    const std::string& home = Places::current().home;
    for (std::string at = path; at.size() > 1 && at != home; at = std::string(PathText::parent(at))) {
        const Source* source = m_map.offering(at);
        if (source == nullptr)
            continue;
        const SourceRow& row = *source->row;
        const bool isReachable =
            row.reading == Reading::single ? isLinkFree(*source) : isReadable(*source, at);
        if (!isReachable || !mayBeOffered(row, at))
            return std::nullopt;
        FileEntry entry = FS::entry(at, source->notes, m_stop, m_unreadable);
        if (!isLargeEnough(row, entry))
            return std::nullopt;
        describe(row, entry);
        return Holding{row.kind, std::move(entry)};
    }
    return std::nullopt;
}

std::vector<FileEntry> SourceReader::children(const SourceRow& row) const
{
    // All folders of the row are measured together, which keeps the disk busy.
    std::vector<std::string> found;
    std::vector<const Source*> origins;
    for (const Source* source : m_map.of(row)) {
        for (std::string& path : pathsIn(*source)) {
            found.push_back(std::move(path));
            origins.push_back(source);
        }
    }
    std::vector<FileEntry> entries = FS::entries(found, {}, m_stop, m_unreadable);
    for (std::size_t i = 0; i < entries.size(); ++i)
        entries[i].notes.insert(entries[i].notes.begin(), origins[i]->notes.begin(), origins[i]->notes.end());
    std::erase_if(entries, [&](const FileEntry& entry) { return !isLargeEnough(row, entry); });
    std::stable_sort(entries.begin(), entries.end(),
                     [](const FileEntry& a, const FileEntry& b) { return a.size > b.size; });
    leaveRoomForOthers(row, entries);
    if (entries.size() > row.limit)
        entries.resize(row.limit);
    for (FileEntry& entry : entries)
        describe(row, entry);
    return entries;
}

/// What the row says of an entry that has its source's note.
void SourceReader::describe(const SourceRow& row, FileEntry& entry) const
{
    entry.rating = row.rating;
    if (row.noteOf != nullptr)
        addNote(entry, row.noteOf(entry.path));
    addNote(entry, row.caution);
    if (!row.isOwnedByProgram)
        return;
    if (const std::string program = m_owners.running(PathText::lastComponent(entry.path)); !program.empty())
        addNote(entry, Message{ScanTexts::kQuitFirst, {{"name", program}}});
}

/// Drops as many entries from the end as the places offered by other rows would have displaced.
void SourceReader::leaveRoomForOthers(const SourceRow& row, std::vector<FileEntry>& entries) const
{
    // They are measured by their own rows; here they count only if there are too many entries.
    if (entries.size() + row.exceptAfterLimit.size() <= row.limit)
        return;
    std::vector<std::string> others;
    for (const Source* source : m_map.of(row)) {
        for (const std::string_view name : row.exceptAfterLimit)
            others.push_back(PathText::join(source->path, name));
    }
    std::vector<FileEntry> measured = FS::entries(others, {}, m_stop);
    std::erase_if(measured, [&](const FileEntry& entry) {
        return !isLargeEnough(row, entry) || !mayBeOffered(row, entry.path);
    });
    std::ranges::sort(measured, std::ranges::greater(), &FileEntry::size);
    std::size_t room = row.limit;
    for (const FileEntry& other : measured) {
        const auto larger =
            std::ranges::count_if(entries, [&](const FileEntry& entry) { return entry.size >= other.size; });
        // Its rank among the largest: after those of its size, and after the others already counted.
        room -= static_cast<std::size_t>(larger) < room ? 1 : 0;
    }
    entries.resize(std::min(entries.size(), room));
}

std::vector<FileEntry> SourceReader::single(const Source& source) const
{
    if (const auto status = statusOf(source.path); !status.ok()) {
        noteUnreachable(source.path, status.error());
        return {};
    }
    if (!isLinkFree(source) || !m_map.isOffered(source) || !mayBeOffered(*source.row, source.path))
        return {};
    m_progress.show(source.path);
    FileEntry entry = FS::entry(source.path, source.notes, m_stop, m_unreadable);
    if (!isLargeEnough(*source.row, entry))
        return {};
    describe(*source.row, entry);
    return {std::move(entry)};
}

std::vector<std::string> SourceReader::pathsIn(const Source& folder) const
{
    std::vector<std::string> found;
    const auto fd = openToRead(folder);
    if (!fd.ok()) {
        noteUnreachable(folder.path, fd.error());
        return found;
    }
    const SourceRow& row = *folder.row;
    const auto look = [&](const FolderEntry& entry) {
        if (m_stop.stop_requested() || isSkipped(row, entry.name))
            return;
        if (row.layout == Layout::freedesktop && isLink(fd.value().get(), entry))
            return;
        std::string path = PathText::join(folder.path, entry.name);
        if (!m_map.isOfferedBy(folder, path) || !mayBeOffered(row, path))
            return;
        m_progress.tick(path);
        found.push_back(std::move(path));
    };
    FolderReader reader(fd.value().get());
    while (const auto chunk = reader.next()) {
        chunk->forEach(look);
        if (m_stop.stop_requested())
            break;
    }
    noteUnreachable(folder.path, reader.error());
    return found;
}

/// Notes the path, or the first folder on the way to it that denies access.
void SourceReader::noteUnreachable(std::string path, int error) const
{
    if (m_unreadable == nullptr || !UnreadableFolders::isUnreadable(error))
        return;
    while (statusOf(path).error() == EACCES)
        path = std::string(PathText::parent(path));
    if (!Safety::protectsContents(path))
        m_unreadable->add(path);
}

} // namespace orlen

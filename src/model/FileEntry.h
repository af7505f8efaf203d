#pragma once

#include "model/Message.h"
#include "model/Rating.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// The file of a set of duplicates or similar photos that is kept.
struct KeptFile {
    std::string path;
    FileStamp stamp;
    friend bool operator==(const KeptFile&, const KeptFile&) = default;
};

/// One file or folder in a finding. Identified by its path, which is always valid UTF-8: the history could
/// not store any other, so the item could not be put back.
struct FileEntry {
    std::string path;
    /// Bytes that moving this entry frees once the Trash is emptied: a file that has another name elsewhere
    /// counts nothing.
    std::int64_t size = 0;
    std::optional<TimePoint> modified;
    std::optional<TimePoint> lastOpened;
    std::optional<Rating> rating; ///< absent: the finding's rating holds
    std::vector<Message> notes;   ///< what to know about it, most important first
    /// What was at the path when it was scanned: only that may be moved. Absent if unknown; then nothing is
    /// compared.
    std::optional<FileStamp> stamp;
    /// The other file that makes this entry redundant, if any: the entry moves only while that one is there.
    std::optional<KeptFile> kept;
    bool isTickedAlone = false; ///< never ticked along with others by "select all"

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// Adds to an entry's notes, behind or before the others. An empty note changes nothing.
void addNote(FileEntry& entry, Message note);
void addNoteBefore(FileEntry& entry, Message note);
/// All notes in one, joined by " · "; empty if there are none.
[[nodiscard]] Message noteOf(const FileEntry& entry);

} // namespace orlen

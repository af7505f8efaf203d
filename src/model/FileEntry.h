#pragma once

#include "model/Rating.h"
#include "platform/files/FileStatus.h"
#include "platform/values/Time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// The file of a set of duplicates or similar photos that is kept.
struct KeptFile {
    std::string path;
    FileStamp stamp;
    friend bool operator==(const KeptFile&, const KeptFile&) = default;
};

/// One file or folder that a finding lists. Identified by its path, which is always valid UTF-8: the history
/// could not hold another one, so it could not be put back.
struct FileEntry {
    std::string path;
    std::int64_t size = 0; ///< bytes that moving this entry frees
    std::optional<TimePoint> modified;
    std::optional<TimePoint> lastOpened;
    std::optional<Rating> rating; ///< absent: the finding's rating holds
    std::optional<std::string> note;
    /// What stood under the path when it was looked at: only that may be moved. Absent: not known, and the
    /// move compares nothing.
    std::optional<FileStamp> stamp;
    /// What makes this entry dispensable, when that is another file: it moves only while this one is there.
    std::optional<KeptFile> kept;

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// Appends to an entry's note; several notes are joined by " · ".
void addNote(FileEntry& entry, std::string_view note);

} // namespace orlen

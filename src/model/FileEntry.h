#pragma once

#include "model/Rating.h"
#include "platform/Time.h"

#include <cstdint>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// One file or folder that a finding lists. Identified by its path, which is always valid UTF-8: the history
/// could not hold another one, so it could not be put back.
struct FileEntry {
    std::string path;
    std::int64_t size = 0; ///< bytes that moving this entry frees
    std::optional<TimePoint> modified;
    std::optional<TimePoint> lastOpened;
    std::optional<Rating> rating; ///< absent: the finding's rating holds
    std::optional<std::string> note;

    friend bool operator==(const FileEntry&, const FileEntry&) = default;
};

/// Appends to an entry's note; several notes are joined by " · ".
void addNote(FileEntry& entry, std::string_view note);

} // namespace orlen

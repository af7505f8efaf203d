#pragma once

#include "platform/images/MediaFacts.h"
#include "platform/values/Time.h"

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

/// A preview of a file that needs no other program.
struct FilePreview {
    enum class Kind {
        picture,
        page, ///< the first of a document
        text,
        folder,
        archive,
        media,   ///< a sound file, or a film of which no picture is shown
        damaged, ///< what it should be by its name cannot be read
        other,   ///< only facts about the file
        locked,  ///< it cannot be read
        missing,
    };
    struct Name {
        std::string name;
        std::int64_t bytes = -1; ///< allocated, in an archive unpacked; -1: not measured
        bool isFolder = false;
    };

    Kind kind = Kind::missing;
    QString type;                      ///< description in the user's language
    std::optional<std::int64_t> bytes; ///< allocated; absent for a folder
    std::optional<TimePoint> modified;
    std::optional<TimePoint> opened;
    QSize pixels;  ///< of a picture; of a page, in points
    int pages = 0; ///< of a document
    MediaFacts media;
    QSize thumbnail; ///< of that which a file manager has made of a file that cannot be shown; empty: none
    QString text;    ///< the beginning of a text file
    std::vector<Name> names;    ///< of a folder's first items: folders first, then by name; of an archive's
    std::int64_t nameCount = 0; ///< number of all items in a folder
    bool isCut = false;         ///< whether the text or the names are incomplete
    bool isDamaged = false;     ///< whether the names are so because the archive is damaged

    /// Does not follow links. Blocks on the disk; any thread. When stopped, returns what it has.
    [[nodiscard]] static FilePreview of(const std::string& path, const std::stop_token& stop);
};

} // namespace orlen

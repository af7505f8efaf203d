#pragma once

#include "platform/values/Time.h"

#include <QSize>
#include <QString>

#include <cstdint>
#include <optional>
#include <stop_token>
#include <string>
#include <vector>

namespace orlen {

/// What can be shown of a file without another program.
struct FilePreview {
    enum class Kind {
        picture,
        text,
        folder,
        other,  ///< nothing but the facts
        locked, ///< it may not be read
        missing,
    };
    struct Name {
        std::string name;
        std::int64_t bytes = -1; ///< occupied on disk; -1: not measured
        bool isFolder = false;
    };

    Kind kind = Kind::missing;
    QString type;                      ///< in words, of the user's language
    std::optional<std::int64_t> bytes; ///< occupied on disk; absent for a folder
    std::optional<TimePoint> modified;
    std::optional<TimePoint> opened;
    QSize pixels;               ///< of a picture
    QString text;               ///< beginning of a text
    std::vector<Name> names;    ///< of a folder: folders first, then by name, the first of them
    std::int64_t nameCount = 0; ///< of a folder: all
    bool isCut = false;         ///< whether there is more of the text or of the names

    /// Looks at the path itself, links are not followed. Blocks on the disk; any thread. When stopped it
    /// gives what it has.
    [[nodiscard]] static FilePreview of(const std::string& path, const std::stop_token& stop);
};

} // namespace orlen

#pragma once

#include "model/OrlenCategory.h"
#include "platform/values/Time.h"

#include <QColor>
#include <QString>

#include <chrono>
#include <cstdint>
#include <string_view>

namespace orlen {
struct FileEntry;
}

/// Formats values for the screens. Pure; any thread.
namespace orlen::DisplayText {

/// From the program's own UTF-8 texts.
[[nodiscard]] QString text(std::string_view utf8);
/// A file name or path for display only: it may not convert back.
[[nodiscard]] QString path(std::string_view bytes);
/// A path with "~" for the home folder.
[[nodiscard]] QString shortPath(std::string_view bytes);
/// The `shortPath` of the folder that contains the path.
[[nodiscard]] QString folderOf(std::string_view bytes);
/// The last component.
[[nodiscard]] QString nameOf(std::string_view bytes);
[[nodiscard]] QString size(std::int64_t bytes);
/// A whole number with the separators of the user's language.
[[nodiscard]] QString number(std::int64_t value);
/// "1 item", "12,345 items": with "s" for the plural.
[[nodiscard]] QString counted(std::int64_t count, const char* noun);
/// "12 of 340 selected"
[[nodiscard]] QString selectedOf(std::int64_t count, std::int64_t total);
/// "< 0.1 s", "0.4 s", "12 s", "3 min 20 s".
[[nodiscard]] QString duration(std::chrono::duration<double> time);
/// A date, in the user's language and time zone.
[[nodiscard]] QString date(TimePoint time);
/// "Opened 3/1/25"
[[nodiscard]] QString opened(TimePoint time);
/// "Modified 3/1/25"
[[nodiscard]] QString modified(TimePoint time);
/// "Opened 3/1/25", else "Modified 3/1/25", else empty.
[[nodiscard]] QString dateOf(const FileEntry& entry);
/// Date and time, in the user's language and time zone.
[[nodiscard]] QString dateAndTime(TimePoint time);
[[nodiscard]] QColor colour(OrlenCategory category);

} // namespace orlen::DisplayText

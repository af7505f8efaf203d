#pragma once

#include "model/Message.h"
#include "model/OrlenCategory.h"
#include "platform/values/Time.h"

#include <QColor>
#include <QString>
#include <QStringList>

#include <chrono>
#include <cstdint>
#include <string_view>

namespace orlen {
struct FileEntry;
}

/// Formats values for the screens, in the person's language. Pure; any thread.
namespace orlen::DisplayText {

/// From UTF-8 that is the same in all languages, such as names of icons.
[[nodiscard]] QString text(std::string_view utf8);
[[nodiscard]] QString text(const Text& words);
/// Names in the message are shown as by `path`.
[[nodiscard]] QString text(const Message& message);
/// With its first letter as at the start of a sentence.
[[nodiscard]] QString capitalized(const QString& text);
/// "a · b", without empty ones. A line breaks only after the separator.
[[nodiscard]] QString facts(QStringList facts);

/// A file name or path for display only: it may not convert back.
[[nodiscard]] QString path(std::string_view bytes);
/// A name, path or command as one line to copy, without what keeps its direction among other words.
[[nodiscard]] QString line(std::string_view bytes);
/// A path with "~" for the home folder.
[[nodiscard]] QString shortPath(std::string_view bytes);
/// The `shortPath` of the folder that contains the path.
[[nodiscard]] QString folderOf(std::string_view bytes);
/// The last component.
[[nodiscard]] QString nameOf(std::string_view bytes);

[[nodiscard]] QString size(std::int64_t bytes);
[[nodiscard]] QString number(std::int64_t value);
/// A size in pixels: "4,032 × 3,024".
[[nodiscard]] QString pixels(int width, int height);
/// A share of 1: "24 %", "< 1 %".
[[nodiscard]] QString percent(double share);
/// The same in a message.
[[nodiscard]] Value percentOf(double share);
/// A text with the place "count".
[[nodiscard]] QString counted(std::int64_t count, const Text& words);
/// "12 of 340"
[[nodiscard]] QString progress(std::int64_t done, std::int64_t total);
/// "12 of 340 selected"
[[nodiscard]] QString selectedOf(std::int64_t count, std::int64_t total);
/// "34 ms", "0.4 s", "12 s", "3 min 20 s".
[[nodiscard]] QString duration(std::chrono::duration<double> time);
[[nodiscard]] QString date(TimePoint time);
/// "Opened 3/1/25"
[[nodiscard]] QString opened(TimePoint time);
/// "Modified 3/1/25"
[[nodiscard]] QString modified(TimePoint time);
/// "Opened 3/1/25", else "Modified 3/1/25", else empty.
[[nodiscard]] QString dateOf(const FileEntry& entry);
[[nodiscard]] QString dateAndTime(TimePoint time);
[[nodiscard]] QColor colour(OrlenCategory category);

} // namespace orlen::DisplayText

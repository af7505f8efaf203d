#pragma once

#include "model/OrlenCategory.h"
#include "platform/values/Time.h"

#include <QColor>
#include <QString>

#include <chrono>
#include <cstdint>
#include <string_view>

/// Values as the screens show them. Pure; any thread.
namespace orlen::DisplayText {

/// Program texts, which are UTF-8.
[[nodiscard]] QString text(std::string_view utf8);
/// A file name or path made readable; never turned back into a path.
[[nodiscard]] QString path(std::string_view bytes);
/// The path with the home folder as "~".
[[nodiscard]] QString shortPath(std::string_view bytes);
/// The name of the folder that holds the path, as `shortPath`.
[[nodiscard]] QString folderOf(std::string_view bytes);
/// The last component.
[[nodiscard]] QString nameOf(std::string_view bytes);
[[nodiscard]] QString size(std::int64_t bytes);
/// A whole number with the separators of the user's language.
[[nodiscard]] QString number(std::int64_t value);
/// "1 item", "12,345 items".
[[nodiscard]] QString items(std::int64_t count);
/// "< 0.1 s", "0.4 s", "12 s", "3 min 20 s".
[[nodiscard]] QString duration(std::chrono::duration<double> time);
/// A day, in the user's language and time zone.
[[nodiscard]] QString date(TimePoint time);
/// A day and the time of the day.
[[nodiscard]] QString dateAndTime(TimePoint time);
[[nodiscard]] QColor colour(OrlenCategory category);

} // namespace orlen::DisplayText

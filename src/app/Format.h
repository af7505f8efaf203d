#pragma once

#include "platform/values/Time.h"

#include <cstdint>
#include <string>
#include <string_view>

/// Formats values for both the command line and the window. Pure.
namespace orlen::Format {

/// "1 item", "12,345 items".
[[nodiscard]] std::string counted(std::int64_t count, std::string_view noun);
/// "12,345"
[[nodiscard]] std::string grouped(std::int64_t number);
/// "0.4 s", "12 s", "3 min 20 s"
[[nodiscard]] std::string duration(double seconds);
/// Date and time in the user's time zone.
[[nodiscard]] std::string localTime(TimePoint time);
/// A path on one line, with "~" for the home folder.
[[nodiscard]] std::string shownPath(std::string_view path);
/// The path as given, on one line, in quotation marks.
[[nodiscard]] std::string quoted(std::string_view path);

} // namespace orlen::Format

#pragma once

#include <chrono>
#include <optional>
#include <string>
#include <string_view>

namespace orlen {

/// A wall-clock time. Rules that depend on "now" take it as a parameter.
using TimePoint = std::chrono::system_clock::time_point;

/// "2025-03-01T09:30:00Z": UTC, whole seconds, rounded down.
[[nodiscard]] std::string isoText(TimePoint time);

/// Parses exactly what `isoText` writes; nothing for any other text, an impossible date, or a year outside
/// 1900 to 2190.
[[nodiscard]] std::optional<TimePoint> timeFromIso(std::string_view text);

} // namespace orlen

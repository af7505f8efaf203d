#pragma once

#include <optional>
#include <string>

/// The autostart entry by which this program opens at login. Pure; any thread.
namespace orlen::OwnEntry {

inline constexpr const char* kFileName = "orlen.desktop";

/// The text of the entry that starts the program at this path; nothing when no entry can hold the path.
[[nodiscard]] std::optional<std::string> text(const std::string& program);

} // namespace orlen::OwnEntry

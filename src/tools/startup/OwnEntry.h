#pragma once

#include <optional>
#include <string>

/// The autostart entry that opens this program at login. Pure; any thread.
namespace orlen::OwnEntry {

inline constexpr const char* kFileName = "orlen.desktop";

/// The text of an entry that starts the program at this path; nothing if no entry can express the path.
[[nodiscard]] std::optional<std::string> text(const std::string& program);

} // namespace orlen::OwnEntry

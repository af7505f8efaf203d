#pragma once

#include <string_view>

namespace orlen {
class DesktopEntry;
}

/// How the keys of an autostart entry are understood. Any thread.
namespace orlen::AutostartRules {

/// Marks a copy that this program made to keep an entry of all users from starting.
inline constexpr std::string_view kOverrideKey = "X-Orlen-Override";

[[nodiscard]] bool isEnabled(const DesktopEntry& entry);
[[nodiscard]] bool isOverride(const DesktopEntry& entry);

/// Whether the entry is one that the user decides about: not a step of the session's own start, meant for the
/// desktop in use, and of a program that is installed. Blocks on the disk.
[[nodiscard]] bool isForUser(const DesktopEntry& entry);

} // namespace orlen::AutostartRules

#pragma once

#include <string_view>

namespace orlen {
class DesktopEntry;
}

/// Interprets the keys of an autostart entry. Any thread.
namespace orlen::AutostartRules {

/// Marks a copy made by this program to keep a system-wide entry from starting.
inline constexpr std::string_view kOverrideKey = "X-Orlen-Override";

[[nodiscard]] bool isEnabled(const DesktopEntry& entry);
[[nodiscard]] bool isOverride(const DesktopEntry& entry);

/// Whether the entry is the user's to decide: not a step of session start-up, meant for the current desktop,
/// and of an installed program. Blocks on the disk.
[[nodiscard]] bool isForUser(const DesktopEntry& entry);

} // namespace orlen::AutostartRules

#pragma once

#include "model/Text.h"

#include <string>

/// Turns autostart entries on and off by their files. In the user's own entry only the relevant keys change.
/// A system-wide entry is overridden by a copy in the user's folder, and turned on again by removing the
/// copy. Links are never written through or replaced: whoever made one wants its target left alone. Blocks on
/// the disk; any thread.
namespace orlen::AutostartSwitch {

/// Whether the entry of this file name is off now.
bool turnOff(const std::string& name);
/// Whether the entry of this file name is on now.
bool turnOn(const std::string& name);

/// Why the entry of this file name cannot be switched, as one sentence; empty if it probably can.
[[nodiscard]] Text obstacle(const std::string& name);

} // namespace orlen::AutostartSwitch

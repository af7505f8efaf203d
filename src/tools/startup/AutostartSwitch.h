#pragma once

#include <string>
#include <string_view>

/// Switches autostart entries by their files. The user's own entry gets other values of its switches and is
/// otherwise left as it is; one of all users is covered by a copy in the user's folder with the other value,
/// which is taken away again. Links are never written through or replaced: who made one wants the file behind
/// it left alone. Blocks on the disk; any thread.
namespace orlen::AutostartSwitch {

/// Whether the entry of this file name is off now.
bool turnOff(const std::string& name);
/// Whether the entry of this file name is on now.
bool turnOn(const std::string& name);

/// Why the entry of this file name cannot be switched, as one sentence; empty when nothing is known that
/// would hinder it.
[[nodiscard]] std::string_view obstacle(const std::string& name);

} // namespace orlen::AutostartSwitch

#pragma once

#include <string>

/// Switches autostart entries by their files. The user's own entry gets other values of its switches and is
/// otherwise left as it is; one of all users is covered by a copy in the user's folder, which is taken away
/// again. Links are never written through or replaced: who made one wants the file behind it left alone.
/// Blocks on the disk; any thread.
namespace orlen::AutostartSwitch {

/// Whether the entry of this file name is off now.
bool turnOff(const std::string& name);
/// Whether the entry of this file name is on now. False for what the administrator has switched off.
bool turnOn(const std::string& name);

} // namespace orlen::AutostartSwitch

#pragma once

#include <string_view>

/// How this process finds the session bus.
namespace orlen::SessionBus {

inline constexpr const char* kVariable = "DBUS_SESSION_BUS_ADDRESS";
/// An address that connects to no bus.
inline constexpr std::string_view kNowhere = "disabled:";

/// If the session has no bus, keeps libraries in this process from starting one that would outlive the
/// program. Programs it starts are not affected. Call it while there is only one thread and no application
/// object.
void startNone();

/// Whether that was necessary.
[[nodiscard]] bool isMissing();

} // namespace orlen::SessionBus

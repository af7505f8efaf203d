#pragma once

#include <string_view>

/// How this process finds the desktop's bus.
namespace orlen::SessionBus {

inline constexpr const char* kVariable = "DBUS_SESSION_BUS_ADDRESS";
/// The address of no bus.
inline constexpr std::string_view kNowhere = "disabled:";

/// Where the session has no bus, keeps the libraries of this process from starting one, which would run on
/// when the program has ended. Only this process is told: programs that it starts find their bus as they
/// always do. Call it before any other thread runs and before the application object is made.
void startNone();

/// Whether that was necessary.
[[nodiscard]] bool isMissing();

} // namespace orlen::SessionBus

#pragma once

#include <string>
#include <string_view>

/// Names the user's systemd gives to units. Pure; any thread.
namespace orlen::SessionUnitName {

/// The service generated from an autostart entry, by the entry's file name without ".desktop".
[[nodiscard]] std::string ofEntry(std::string_view label);

} // namespace orlen::SessionUnitName

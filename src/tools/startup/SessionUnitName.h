#pragma once

#include <string>
#include <string_view>

/// Names that the user's service manager gives to units. Pure; any thread.
namespace orlen::SessionUnitName {

/// Of the service that it makes from an autostart entry, by the entry's file name without ".desktop".
[[nodiscard]] std::string ofEntry(std::string_view label);

} // namespace orlen::SessionUnitName

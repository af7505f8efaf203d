#pragma once

#include "platform/files/Places.h"
#include "tools/startup/UnitList.h"

#include <string>
#include <vector>

/// What the service manager would list, read from its files, for where it does not answer. Blocks on the
/// disk; any thread.
namespace orlen::UnitLinks {

/// The services of all folders by name, with the manager's words for their states.
[[nodiscard]] std::vector<ListedUnit> listed(const Places& places);

/// The links by which the settings of the user start the unit: those of its name in the folders of what
/// starts others, and those of its further names. The one that stands for the unit itself is not among them.
[[nodiscard]] std::vector<std::string> ofUser(const Places& places, const std::string& unit);

/// Whether the unit starts without any of these links, for everybody.
[[nodiscard]] bool isStartedForEverybody(const Places& places, const std::string& unit);

} // namespace orlen::UnitLinks

#pragma once

#include "platform/Places.h"
#include "tools/startup/UnitList.h"

#include <vector>

/// What the service manager would list, read from its files, for where it does not answer. Blocks on the
/// disk; any thread.
namespace orlen::UnitLinks {

/// The services of all folders by name, with the manager's words for their states.
[[nodiscard]] std::vector<ListedUnit> listed(const Places& places);

} // namespace orlen::UnitLinks

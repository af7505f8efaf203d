#pragma once

#include "platform/files/Places.h"
#include "tools/startup/UnitList.h"

#include <string>
#include <vector>

/// What systemd would report, read from its files for when it does not answer. Blocks on the disk; any
/// thread.
namespace orlen::UnitLinks {

/// All units that can be switched, by name, with systemd's words for their states.
[[nodiscard]] std::vector<ListedUnit> listed(const Places& places);

/// The instances of templates that somebody chose to start, which systemd's own list leaves out.
[[nodiscard]] std::vector<ListedUnit> instances(const Places& places);

/// The first link that starts the unit because somebody chose so; empty if there is none.
[[nodiscard]] std::string firstOf(const Places& places, const std::string& unit);

/// The links in the user's configuration that start the unit: those of its name in other units' folders, and
/// those of its other names, but not the unit's own link.
[[nodiscard]] std::vector<std::string> ofUser(const Places& places, const std::string& unit);

/// Whether the unit starts for everybody even without these links.
[[nodiscard]] bool isStartedForEverybody(const Places& places, const std::string& unit);

} // namespace orlen::UnitLinks

#pragma once

#include "tools/startup/UnitList.h"

#include <optional>
#include <string>
#include <vector>

/// The tool that speaks with the user's service manager. Blocks on child processes; any thread.
namespace orlen::Systemctl {

/// Whether the tool is there.
[[nodiscard]] bool isInstalled();

/// All services that the manager knows; nothing when it does not answer.
[[nodiscard]] std::optional<std::vector<ListedUnit>> services();

enum class Way {
    throughManager,
    onFiles, ///< nobody answers: only the files are changed, which count from the next login
};

/// Whether the call succeeds.
bool call(std::vector<std::string> arguments, Way way = Way::throughManager);

/// Changes a setting of a unit with "enable", "mask" or their like. The way that worked.
std::optional<Way> change(const std::string& verb, const std::string& unit);

} // namespace orlen::Systemctl

#pragma once

#include "tools/startup/UnitList.h"

#include <optional>
#include <string>
#include <vector>

/// Talks to the user's systemd. Blocks on child processes; any thread.
namespace orlen::Systemctl {

/// Whether systemctl is installed.
[[nodiscard]] bool isInstalled();

/// All services, timers, sockets and paths it knows, but no instances of templates; nothing if it does not
/// answer.
[[nodiscard]] std::optional<std::vector<ListedUnit>> units();

enum class Way {
    throughManager,
    onFiles, ///< the manager does not answer: only files are changed, effective at the next login
};

/// Whether the call succeeds.
bool call(std::vector<std::string> arguments, Way way = Way::throughManager);

/// Runs "enable", "mask" or a similar verb on a unit. Returns the way that worked.
std::optional<Way> change(const std::string& verb, const std::string& unit);

} // namespace orlen::Systemctl

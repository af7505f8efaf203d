#pragma once

#include "platform/files/Places.h"

#include <string>
#include <string_view>
#include <vector>

/// Where the files of the user's service manager lie. Blocks on the disk; any thread.
namespace orlen::UnitFolders {

/// Whether a unit of this name is a service that can be switched: no template, and nothing that a command
/// line could take for an option. Pure.
[[nodiscard]] bool isServiceName(std::string_view name);

/// Those of the user's own settings, the most important first. Pure.
[[nodiscard]] std::vector<std::string> ofUser(const Places& places);
/// All folders of units, the most important first. Pure.
[[nodiscard]] std::vector<std::string> all(const Places& places);
/// Those among them that hold the settings of the user or the administrator rather than those of packages.
/// Pure.
[[nodiscard]] std::vector<std::string> ofSettings(const Places& places);

/// The file that describes the unit: the first of that name that is no mask. Empty when there is none.
[[nodiscard]] std::string find(const Places& places, const std::string& name);
/// Whether what stands there keeps a unit from ever starting: a link to nowhere or an empty file.
[[nodiscard]] bool isMask(const std::string& path);
/// Whether the user has masked the unit.
[[nodiscard]] bool isMaskedByUser(const Places& places, const std::string& name);
/// Whether the user has a file of their own of that name among the settings, so that no mask can be put
/// there.
[[nodiscard]] bool isTakenByUser(const Places& places, const std::string& name);
/// Whether that is a link, by which the user has taken up a unit from elsewhere.
[[nodiscard]] bool isLinkedByUser(const Places& places, const std::string& name);

} // namespace orlen::UnitFolders

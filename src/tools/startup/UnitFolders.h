#pragma once

#include "platform/files/Places.h"

#include <string>
#include <string_view>
#include <vector>

/// The folders of the user's systemd units. Blocks on the disk; any thread.
namespace orlen::UnitFolders {

/// Whether this is the name of a service, timer, socket or path that can be switched: not a template, and
/// nothing a command line could mistake for an option. Pure.
[[nodiscard]] bool isUnitName(std::string_view name);

/// The parts of a unit's name "stem@instance.suffix". Pure.
struct NameParts {
    std::string_view stem;
    std::string_view instance; ///< empty for what is no instance of a template
    std::string_view suffix;   ///< with its dot
};
[[nodiscard]] NameParts partsOf(std::string_view name);

/// The user's own configuration, most important first. Pure.
[[nodiscard]] std::vector<std::string> ofUser(const Places& places);
/// All unit folders, most important first. Pure.
[[nodiscard]] std::vector<std::string> all(const Places& places);
/// Those that hold configuration by the user or administrator rather than units of packages. Pure.
[[nodiscard]] std::vector<std::string> ofSettings(const Places& places);

/// The file that describes the unit: the first of that name that is not a mask, for an instance else that of
/// its template. Empty if there is none.
[[nodiscard]] std::string find(const Places& places, const std::string& name);
/// Whether the file at this path masks a unit: it is a link to nowhere or empty.
[[nodiscard]] bool isMask(const std::string& path);
/// Whether the user has masked the unit.
[[nodiscard]] bool isMaskedByUser(const Places& places, const std::string& name);
/// Whether the user has a file of that name in the configuration, so that no mask can be put there.
[[nodiscard]] bool isTakenByUser(const Places& places, const std::string& name);
/// Whether that file is a link that adds a unit from elsewhere.
[[nodiscard]] bool isLinkedByUser(const Places& places, const std::string& name);

} // namespace orlen::UnitFolders

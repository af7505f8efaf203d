#pragma once

#include "platform/files/Places.h"

#include <map>
#include <set>
#include <string>

/// Which packages of the distribution files come from, by the lists of dpkg and pacman. Reads all lists,
/// which takes a fraction of a second; any thread.
namespace orlen::PackageNames {

/// The packages of these files, by path; what no list names is left out.
[[nodiscard]] std::map<std::string, std::string> of(const Places& places, const std::set<std::string>& paths);

} // namespace orlen::PackageNames

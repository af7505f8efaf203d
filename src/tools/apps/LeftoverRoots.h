#pragma once

#include "tools/apps/LeftoverRules.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// A folder in which applications leave something.
struct LeftoverRoot {
    std::string folder;
    std::string_view label; ///< for the reader
    LeftoverRules::Kind kind = LeftoverRules::Kind::library;
};

namespace LeftoverRoots {

/// All of them in the order in which they are searched. Blocks on the disk.
[[nodiscard]] std::vector<LeftoverRoot> all();

inline constexpr std::string_view kPortableLabel = "Portable data";
/// What portable mode and updates put beside an AppImage: its path with one of these behind it.
inline constexpr std::string_view kPortableSuffixes[] = {".home", ".config", ".zsync"};

} // namespace LeftoverRoots
} // namespace orlen

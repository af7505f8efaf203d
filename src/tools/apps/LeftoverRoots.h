#pragma once

#include "model/Text.h"
#include "tools/apps/LeftoverRules.h"

#include <string>
#include <string_view>
#include <vector>

namespace orlen {

/// A folder in which applications leave files.
struct LeftoverRoot {
    std::string folder;
    Text label; ///< shown to the user
    LeftoverRules::Kind kind = LeftoverRules::Kind::library;
};

namespace LeftoverRoots {

/// All roots in search order. Blocks on the disk.
[[nodiscard]] std::vector<LeftoverRoot> all();

/// Suffixes of what portable mode and updates put beside an AppImage.
inline constexpr std::string_view kPortableSuffixes[] = {".home", ".config", ".zsync"};
/// The folder beside AppImages in which their manager keeps icons.
inline constexpr std::string_view kIconFolder = ".icons";

} // namespace LeftoverRoots
} // namespace orlen

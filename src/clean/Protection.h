#pragma once

#include "model/Text.h"

#include <cstdint>
#include <span>
#include <string_view>

namespace orlen {

/// Why a path is protected.
enum class Protection : std::uint8_t {
    none, ///< it is not
    outside,
    systemFolders,
    mainFolders,
    settingsBesideCaches,
    cloudStores,
    credentials,
    keyrings,
    browserProfiles,
    mail,
    conversations,
    savedState,
    managedStores,
    trash,
    ownData,
    repositories,
    encryption,
    mediaLibraries,
    placeholders,
    catalogues,
    syncFolders,
    mountPoints,
    otherFileSystems,
    holdsProtected,
    unclearPath,
};

/// What is protected, as a heading: "Browser profiles". Empty for `none`.
[[nodiscard]] Text label(Protection protection);
/// One sentence that says why: "Passwords, history and open tabs." Empty for `none`.
[[nodiscard]] Text reason(Protection protection);

/// All but `none`, in the order of the enumeration.
[[nodiscard]] std::span<const Protection> allProtections();

} // namespace orlen

#pragma once

#include "model/Message.h"

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// The kind of an installed application, which decides what can be done with it.
enum class AppSource {
    bundle,         ///< ".app" folder with a property list
    appImage,       ///< one executable file
    folder,         ///< self-contained folder
    flatpak,        ///< managed by Flatpak: shown with advice, never moved
    snap,           ///< managed by Snap: shown with advice, never moved
    removedFlatpak, ///< leftover data folder of a removed Flatpak
};

/// One application. Identified by its path.
struct AppInfo {
    std::string path;
    std::string name;
    std::string bundleID;             ///< reverse-DNS identifier; empty if none
    std::optional<std::int64_t> size; ///< bytes on disk in total; absent until measured
    AppSource source = AppSource::bundle;
    /// How to remove it another way, if the program does not; else empty.
    Message advice;
    /// The command in the advice, for copying; else empty.
    std::string adviceCommand;
    std::string icon;                   ///< absolute path or theme name from its launcher; may be empty
    std::vector<std::string> launchers; ///< its desktop entry files, absolute

    [[nodiscard]] bool isRemovable() const { return advice.empty(); }

    friend bool operator==(const AppInfo&, const AppInfo&) = default;
};

} // namespace orlen

#pragma once

#include <cstdint>
#include <optional>
#include <string>
#include <vector>

namespace orlen {

/// What kind of thing an installed application is, which decides what may be done with it.
enum class AppSource {
    bundle,         ///< ".app" folder with a property list
    appImage,       ///< one executable file
    folder,         ///< self-contained folder
    flatpak,        ///< belongs to Flatpak: shown with advice, never moved
    snap,           ///< belongs to Snap: shown with advice, never moved
    removedFlatpak, ///< only the data folder of a Flatpak that is gone
};

/// One application of the list. Identified by its path.
struct AppInfo {
    std::string path;
    std::string name;
    std::string bundleID;             ///< reverse-DNS identifier, empty when it has none
    std::optional<std::int64_t> size; ///< bytes on disk of the whole of it; absent until measured
    AppSource source = AppSource::bundle;
    /// What to do instead, for what the program itself does not remove; else empty.
    std::string advice;
    /// The part of the advice that is a command, to be copied; empty without advice.
    std::string adviceCommand;
    std::string icon;                   ///< absolute path or theme name from its launcher; may be empty
    std::vector<std::string> launchers; ///< its desktop entry files, absolute

    [[nodiscard]] bool isRemovable() const { return advice.empty(); }

    friend bool operator==(const AppInfo&, const AppInfo&) = default;
};

} // namespace orlen

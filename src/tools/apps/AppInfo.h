#pragma once

#include "model/Message.h"
#include "platform/values/Time.h"

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

/// When an application was last used, as far as anything tells.
struct AppUse {
    enum class Source {
        desktop, ///< the desktop or the program itself noted it
        file,    ///< its file was last read then, which something else may have done
    };

    TimePoint when;
    Source source = Source::desktop;
    friend bool operator==(const AppUse&, const AppUse&) = default;
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
    std::string data;                   ///< the folder that its manager gives it for its data; may be empty
    /// Bytes of what it has stored outside `path`, as far as that is surely its own; absent until measured.
    std::optional<std::int64_t> dataSize;
    std::optional<AppUse> lastUse; ///< absent if nothing tells

    /// Bytes with its data, as far as that is measured; absent until it is measured itself.
    [[nodiscard]] std::optional<std::int64_t> total() const;
    [[nodiscard]] bool isRemovable() const { return advice.empty(); }

    friend bool operator==(const AppInfo&, const AppInfo&) = default;
};

} // namespace orlen
